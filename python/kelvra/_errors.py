"""What this package raises, and what it warns of."""
from typing import Any, Dict


class KelvraError(Exception):
    """The base of all errors of this package."""


class LibraryNotFound(KelvraError):
    """The shared library kelvra_text was found nowhere, or could not be loaded."""


class LibraryError(KelvraError):
    """The library reports a fault of its own, or is of a version that does not suit this package."""


class UnreadableCapture(KelvraError):
    """A capture cannot be opened, or read on; the messages before that have been delivered."""


class MalformedMessage(KelvraError):
    """A message is not complete; raised on request only. `message` is its dictionary, with all that was read."""

    def __init__(self, message: Dict[str, Any]) -> None:
        super().__init__(message)
        self.message = message

    def __str__(self) -> str:
        fault = self.message.get("fault", {})
        where = f" at octet {fault['octet']}" if "octet" in fault else ""
        member = f" in {fault['member']}" if fault.get("member") else ""
        return f"{self.message.get('name') or 'a message'}: {fault.get('cause', 'not complete')}{member}{where}"


class CaptureWarning(UserWarning):
    """The base of what is warned of while a capture is read."""


class CaptureLoss(CaptureWarning):
    """Octets of a capture that should have held messages do not."""


class CaptureNotice(CaptureWarning):
    """A remark on a capture that is no loss."""
