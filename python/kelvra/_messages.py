"""Messages and captures as dictionaries."""
import ctypes
import json
import os
import warnings
from typing import Any, Dict, Iterable, Iterator, Literal, Mapping, NoReturn, Optional, Union

from . import _library
from ._errors import CaptureLoss, CaptureNotice, KelvraError, LibraryError, MalformedMessage, UnreadableCapture

Family = Literal["ras", "q931", "h245"]
FAMILIES = tuple(_library.FAMILY_NUMBERS)
Octets = Union[bytes, bytearray, memoryview]


def decode(family: Family, octets: Octets, *, strict: bool = False) -> Dict[str, Any]:
    """Decodes one message.

    `family` is "ras" (one UDP datagram; no spare octet is needed), "q931" (with its TPKT header) or "h245" (without
    it). The dictionary has ``name``, ``complete`` and ``message``, and ``fault`` if the message is incomplete.
    Malformed messages and those cut short have one too, with what was read; `strict` raises MalformedMessage for them.

    Raises ValueError for another family, TypeError if `octets` is not bytes-like.
    """
    number = _number_of(family)
    data = bytes(memoryview(octets))
    library = _library.library()
    text = ctypes.c_void_p()
    status = library.kelvra_text_decode(number, data, len(data), ctypes.byref(text))
    json_text = _library.take_text(library, text)
    if status != _library.OK:
        _raise(status, json_text)
    return _checked(json_text, strict)


def read_capture(path: Union[str, "os.PathLike[str]"], *, ports: Optional[Mapping[Family, Iterable[int]]] = None,
                 strict: bool = False) -> Iterator[Dict[str, Any]]:
    """Iterates over the messages of a capture (pcap or pcapng), in the order in which they were completed.

    A dictionary has what `decode` returns, and ``frame``, ``time``, ``source`` and ``destination``. Messages are found
    by UDP ports 1718 and 1719, TCP port 1720 and the addresses that messages announce; `ports` adds to them:
    ``{"ras": [1819]}``. Octets that cannot be read as messages cause a CaptureLoss warning.

    The file is opened at once and read during the iteration. Raises UnreadableCapture for a file that is no
    capture, and after the messages before it where one cannot be read on; with `strict` MalformedMessage for the first
    message that is not complete.
    """
    numbers = [(_number_of(family), port) for family, added in (ports or {}).items() for port in added]
    library = _library.library()
    capture, text = ctypes.c_void_p(), ctypes.c_void_p()
    status = library.kelvra_text_open_capture(os.fsencode(path), ctypes.byref(capture), ctypes.byref(text))
    if status != _library.OK:
        _raise(status, _library.take_text(library, text))
    opened = _Capture(library, capture)
    for number, port in numbers:
        if not 1 <= port <= 65535 or library.kelvra_text_add_port(capture, number, port) != _library.OK:
            raise ValueError(f"no port: {port}")
    return _messages(opened, strict)


class _Capture:
    """An open capture, closed with the last reference to it."""

    def __init__(self, library: ctypes.CDLL, handle: ctypes.c_void_p) -> None:
        self.library = library
        self.handle = handle

    def __del__(self) -> None:
        self.library.kelvra_text_close_capture(self.handle)


def _messages(capture: _Capture, strict: bool) -> Iterator[Dict[str, Any]]:
    library = capture.library
    text = ctypes.c_void_p()
    while True:
        status = library.kelvra_text_next(capture.handle, ctypes.byref(text))
        said = _library.take_text(library, text)
        if status == _library.OK:
            yield _checked(said, strict)
        elif status == _library.END:
            return
        elif status == _library.LOSS:
            warnings.warn(_words(said), CaptureLoss, stacklevel=2)
        elif status > _library.OK:  # a notice, or a status of a later library
            warnings.warn(_words(said), CaptureNotice, stacklevel=2)
        else:
            _raise(status, said)


def _number_of(family: str) -> int:
    try:
        return _library.FAMILY_NUMBERS[family]
    except KeyError:
        raise ValueError(f"no family: {family!r}; there are {', '.join(FAMILIES)}") from None


def _checked(json_text: bytes, strict: bool) -> Dict[str, Any]:
    message: Dict[str, Any] = json.loads(json_text)
    if strict and not message["complete"]:
        raise MalformedMessage(message)
    return message


def _words(text: bytes) -> str:
    return text.decode("utf-8", "backslashreplace")


def _raise(status: int, text: bytes) -> NoReturn:
    if status == _library.OUT_OF_MEMORY:
        raise MemoryError
    if status == _library.UNREADABLE:
        raise UnreadableCapture(_words(text))
    if text:
        raise LibraryError(_words(text))
    raise KelvraError(f"the library returned {status}")
