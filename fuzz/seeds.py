#!/usr/bin/env python3
"""Seeds for the fuzzers: seeds.py DATA OUT

Writes each message of the JSON Lines files in DATA, which hold its `family` and its octets under `hex`, to a file of
its own in OUT/ras, OUT/q931 or OUT/h245.
"""
import hashlib
import json
import pathlib
import sys

FAMILIES = ("ras", "q931", "h245")


def messages(directory):
    for path in sorted(directory.glob("*.jsonl")):
        for line in path.open():
            message = json.loads(line)
            if message.get("family") in FAMILIES:
                yield message["family"], bytes.fromhex(message["hex"])


def main():
    data, out = map(pathlib.Path, sys.argv[1:])
    for family in FAMILIES:
        (out / family).mkdir(parents=True, exist_ok=True)
    for family, octets in messages(data):
        if family == "ras":
            octets += b"\0"  # the spare octet, without which a message is refused
        (out / family / hashlib.sha1(octets).hexdigest()[:16]).write_bytes(octets)


main()
