"""The exceptions and warnings of this package."""
from typing import Any, Dict


class KelvraError(Exception):
    """The base class of this package's errors."""


class LibraryNotFound(KelvraError):
    """The shared library kelvra_text was not found or could not be loaded."""


class LibraryError(KelvraError):
    """The library reports an internal error, or its version does not match this package."""


class UnreadableCapture(KelvraError):
    """A capture cannot be opened or read on; earlier messages have been delivered."""


class MalformedMessage(KelvraError):
    """A message is incomplete; raised only on request. `message` is its dictionary, with everything that was read."""

    def __init__(self, message: Dict[str, Any]) -> None:
        super().__init__(message)
        self.message = message

    def __str__(self) -> str:
        fault = self.message.get("fault", {})
        where = f" at octet {fault['octet']}" if "octet" in fault else ""
        member = f" in {fault['member']}" if fault.get("member") else ""
        return f"{self.message.get('name') or 'a message'}: {fault.get('cause', 'not complete')}{member}{where}"


class CaptureWarning(UserWarning):
    """The base class of warnings about a capture."""


class CaptureLoss(CaptureWarning):
    """Octets of a capture should hold messages but do not."""


class CaptureNotice(CaptureWarning):
    """A remark about a capture; nothing was lost."""
