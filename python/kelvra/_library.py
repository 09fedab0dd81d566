"""Finds and loads the shared library kelvra_text."""
import ctypes
import ctypes.util
import os
import pathlib
import sys
import threading
from typing import Callable, Iterator, List, Optional, Union

from ._errors import LibraryError, LibraryNotFound
from ._version import VERSION

LIBRARY_VARIABLE = "KELVRA_TEXT_LIBRARY"

Path = Union[str, "os.PathLike[str]"]

# The statuses and families of kelvra_text.h.
OK, END, LOSS, NOTICE = range(4)
OUT_OF_MEMORY, UNREADABLE = -2, -3
FAMILY_NUMBERS = {"ras": 0, "q931": 1, "h245": 2}

_lock = threading.Lock()
_loaded: Optional[ctypes.CDLL] = None


def load_library(path: Optional[Path] = None) -> None:
    """Loads kelvra_text, replacing the one already loaded.

    Without a path it is looked for in this order: the file that the environment variable KELVRA_TEXT_LIBRARY names, the
    folder of this package, the places of the system. If one is named, no other is tried. Calling this is optional: the
    first decode does it. Raises LibraryNotFound, or LibraryError for a library that does not match this package.
    """
    global _loaded
    with _lock:
        _loaded = _load(path)


def library() -> ctypes.CDLL:
    """The loaded library."""
    global _loaded
    with _lock:
        if _loaded is None:
            _loaded = _load(None)
        return _loaded


def library_version() -> str:
    """The version of the loaded library."""
    return str(library().kelvra_text_version().decode())


def take_text(library: ctypes.CDLL, text: ctypes.c_void_p) -> bytes:
    """Returns the octets of a text from the library, and frees the text."""
    if not text.value:
        return b""
    try:
        return ctypes.string_at(text.value)
    finally:
        library.kelvra_text_free(text)


def _load(path: Optional[Path]) -> ctypes.CDLL:
    named = path or os.environ.get(LIBRARY_VARIABLE)
    candidates: List[str] = [os.fspath(named)] if named else list(_candidates())
    reasons = []
    for candidate in candidates:
        try:
            loaded = ctypes.CDLL(candidate)
            return _declare(loaded)
        except OSError as error:
            reasons.append(str(error))
        except AttributeError as error:
            raise LibraryError(f"{candidate} is not kelvra_text: {error}") from error
    raise LibraryNotFound(
        f"kelvra_text cannot be loaded: {'; '.join(reasons) or 'it is nowhere'}. Install it, or name its file in the "
        f"environment variable {LIBRARY_VARIABLE}")


def _names() -> List[str]:
    major = VERSION.partition(".")[0]
    if sys.platform == "win32":
        return ["kelvra_text.dll"]
    return [f"libkelvra_text.so.{major}", "libkelvra_text.so"]


def _candidates() -> Iterator[str]:
    folder = pathlib.Path(__file__).resolve().parent
    for name in _names():
        if (folder / name).exists():
            yield str(folder / name)
    yield from _names()
    found = ctypes.util.find_library("kelvra_text")
    if found:
        yield found


def _declare(loaded: ctypes.CDLL) -> ctypes.CDLL:
    text = ctypes.POINTER(ctypes.c_void_p)

    def declare(function: Callable[..., object], result: object, *arguments: object) -> None:
        function.restype, function.argtypes = result, arguments  # type: ignore[attr-defined]

    declare(loaded.kelvra_text_version, ctypes.c_char_p)
    declare(loaded.kelvra_text_decode, ctypes.c_int, ctypes.c_int, ctypes.c_char_p, ctypes.c_size_t, text)
    declare(loaded.kelvra_text_free, None, ctypes.c_void_p)
    declare(loaded.kelvra_text_open_capture, ctypes.c_int, ctypes.c_char_p, text, text)
    declare(loaded.kelvra_text_add_port, ctypes.c_int, ctypes.c_void_p, ctypes.c_int, ctypes.c_uint16)
    declare(loaded.kelvra_text_next, ctypes.c_int, ctypes.c_void_p, text)
    declare(loaded.kelvra_text_close_capture, None, ctypes.c_void_p)
    version = loaded.kelvra_text_version().decode()
    if version.split(".")[0] != VERSION.split(".")[0]:
        raise LibraryError(f"kelvra_text is of version {version}, this package of {VERSION}")
    return loaded
