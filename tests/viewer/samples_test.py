#!/usr/bin/env python3
"""Tests that samples/failed-calls.pcap is what its script makes, and says what the script means.

Usage: samples_test.py KELVRA_DUMP [EMULATOR...]
"""
import json
import os
import struct
import sys
import unittest

from viewer_test import TOP, objects, run

sys.path.insert(0, os.path.join(TOP, "samples"))
import failed_calls  # noqa: E402

STORY = failed_calls.tell()


def file_of(path):
    with open(path, "rb") as file:
        return file.read()


def checksum_is_right(packet, segment):
    """True if the checksums of the IP header and of the segment with its pseudo header are zero."""
    pseudo = packet[12:20] + struct.pack(">HH", packet[9], len(segment))
    return failed_calls.checksum(packet[:20]) == 0 and failed_calls.checksum(pseudo + segment) == 0


class FailedCalls(unittest.TestCase):
    def test_capture_and_table_are_those_of_the_script(self):
        self.assertEqual(file_of(failed_calls.CAPTURE), b"".join(STORY.capture.octets()))
        readme = file_of(failed_calls.README).decode()
        self.assertEqual(readme, failed_calls.with_table(readme, STORY))

    def test_exchanged_values_change_nothing_else(self):
        for family in ("ras", "q931", "h245"):
            messages = [m for m in STORY.messages if m.family == family]

            def decoded(octets, family=family):
                return run("--as", family, "--input", "hex", "--format", "json",
                           data="\n".join(o.hex() for o in octets).encode()).stdout.decode().splitlines()
            before, after = decoded([m.base for m in messages]), decoded([m.octets for m in messages])
            self.assertEqual((len(before), len(after)), (len(messages), len(messages)))
            for message, old, new in zip(messages, before, after):
                pairs = [pair for change in message.changes for pair in change.json]
                expected, printed = json.loads(failed_calls.exchange(pairs, old)), json.loads(new)
                self.assertEqual(printed["message"], expected["message"])

    def test_checksums(self):
        for frame, packet in failed_calls.packets(file_of(failed_calls.CAPTURE)):
            self.assertTrue(checksum_is_right(packet, packet[20:]), frame)

    def test_viewer_finds_every_message(self):
        result = run("--format", "json", failed_calls.CAPTURE)
        self.assertEqual(result.returncode, 1)
        self.assertEqual(sorted(o["octets"] for o in objects(result)),
                         sorted(len(m.octets) for m in STORY.messages))
        self.assertEqual(result.stderr.count(b"missing"), 1)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
