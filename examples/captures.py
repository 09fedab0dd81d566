#!/usr/bin/env python3
"""Counts the messages of all captures in a folder, on all cores: captures.py FOLDER [PROCESSES]

Prints one line for each capture and one for all: messages, how many are complete, and how many there are of each
family. Each capture is read by one process. The exit status is 1 if a capture could not be read to its end.
"""
import collections
import concurrent.futures
import pathlib
import sys
import warnings
from typing import Counter, NamedTuple, Optional

import kelvra

ENDINGS = (".pcap", ".pcapng", ".cap")


class Result(NamedTuple):
    counts: Counter[str]
    losses: int
    error: Optional[str]


def count(path: pathlib.Path) -> Result:
    """Counts the messages of one capture; runs in its own process."""
    counts: Counter[str] = collections.Counter()
    error = None
    with warnings.catch_warnings(record=True) as losses:
        warnings.simplefilter("always", kelvra.CaptureLoss)
        try:
            for message in kelvra.read_capture(path):
                counts["messages"] += 1
                counts["complete"] += message["complete"]
                counts[message["family"]] += 1
        except kelvra.UnreadableCapture as unreadable:
            error = str(unreadable)
    return Result(counts, len(losses), error)


def line(name: str, result: Result) -> str:
    columns = " ".join(f"{what} {result.counts[what]}" for what in ("messages", "complete", *kelvra.FAMILIES))
    return f"{name}: {columns} losses {result.losses}" + (f" ({result.error})" if result.error else "")


def main() -> int:
    folder = pathlib.Path(sys.argv[1])
    processes = int(sys.argv[2]) if len(sys.argv) > 2 else None
    captures = sorted(path for path in folder.rglob("*") if path.suffix in ENDINGS)
    total = Result(collections.Counter(), 0, None)
    failed = False
    with concurrent.futures.ProcessPoolExecutor(processes) as pool:
        for path, result in zip(captures, pool.map(count, captures)):
            print(line(str(path.relative_to(folder)), result))
            total = Result(total.counts + result.counts, total.losses + result.losses, None)
            failed = failed or result.error is not None
    print(line("all", total))
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
