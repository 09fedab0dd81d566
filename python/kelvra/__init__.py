"""H.323 signalling as dictionaries: H.225.0 RAS, Q.931 call signalling and H.245.

    import kelvra

    message = kelvra.decode("ras", octets)
    message["name"], message["complete"], message["message"]

    for message in kelvra.read_capture("call.pcap"):
        print(message["time"], message["name"])

Each dictionary is one line of ``kelvra-dump --format json``. The shared library kelvra_text does the work; it is
located on first use; see `load_library`.
"""
from ._errors import (CaptureLoss, CaptureNotice, CaptureWarning, KelvraError, LibraryError, LibraryNotFound,
                      MalformedMessage, UnreadableCapture)
from ._library import LIBRARY_VARIABLE, library_version, load_library
from ._messages import FAMILIES, Family, decode, read_capture
from ._version import VERSION as __version__

__all__ = [
    "CaptureLoss", "CaptureNotice", "CaptureWarning", "FAMILIES", "Family", "KelvraError", "LIBRARY_VARIABLE",
    "LibraryError", "LibraryNotFound", "MalformedMessage", "UnreadableCapture", "__version__", "decode",
    "library_version", "load_library", "read_capture",
]
