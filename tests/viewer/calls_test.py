#!/usr/bin/env python3
"""Tests of the calls that kelvra-dump finds in captures, of its statistics and of its filters.

Usage: calls_test.py KELVRA_DUMP [EMULATOR...]

Whole outputs are compared with the files of golden/calls/. If KELVRA_UPDATE is set, the test writes them
instead; compare them with samples/README.md before you commit them.
"""
import os
import re
import struct
import sys
import tempfile
import unittest

from captures import rare_calls
from captures.rare_calls import base as failed_calls
from viewer_test import TOP, capture, ethernet, ipv4, objects, run, udp

GOLDEN = os.path.join(os.path.dirname(os.path.abspath(__file__)), "golden", "calls")
FAILED = os.path.join(TOP, "samples", "failed-calls.pcap")
CALL = os.path.join(TOP, "samples", "call.pcap")


def frames(capture, *arguments):
    result = run("--format", "json", *arguments, capture)
    return [printed["frame"] for printed in objects(result)]


def calls(*arguments):
    """The numbers of the calls in the table."""
    lines = run("--calls", *arguments, FAILED).stdout.decode().split("\n\n")[0].splitlines()[1:]
    return [int(line.split()[0]) for line in lines]


class Golden(unittest.TestCase):
    maxDiff = None

    def check(self, name, *arguments, data=b""):
        printed = run(*arguments, data=data).stdout.decode()
        path = os.path.join(GOLDEN, name)
        if "KELVRA_UPDATE" in os.environ:
            with open(path, "w", encoding="utf-8") as golden:
                golden.write(printed)
        with open(path, encoding="utf-8") as golden:
            self.assertEqual(printed, golden.read())

    def test_table(self):
        self.check("failed-calls.table.txt", "--calls", FAILED)

    def test_blocks(self):
        self.check("failed-calls.calls.txt", "--format", "calls", FAILED)
        self.check("call.calls.txt", "--format", "calls", CALL)

    def test_rare_calls(self):
        for name, *arguments in (("calls", "--format", "calls"), ("ladder", "--format", "ladder", "--call", "ca06"),
                                 ("stats", "--stats")):
            self.check(f"rare-calls.{name}.txt", "--h245-port", str(rare_calls.UNKNOWN_H245), *arguments,
                       data=rare_calls.octets())

    def test_ladder(self):
        self.check("failed-calls.ladder.txt", "--format", "ladder", "--faulty", FAILED)
        self.check("call.ladder.txt", "--format", "ladder", CALL)

    def test_statistics(self):
        self.check("failed-calls.stats.txt", "--stats", FAILED)
        self.check("call-13.stats.txt", "--stats", "--call", "13", FAILED)
        faulty = run("--stats", "--faulty", FAILED).stdout  # as many calls as in test_faulty
        self.assertIn(b"messages: 2, calls: 7, refused connections: 1\n", faulty)
        self.assertIn(b"messages: 1, calls: 1,", run("--stats", "--call", "7", "--faulty", FAILED).stdout)

    def test_calls_from_a_pipe_are_the_same_in_the_order_of_their_ends(self):
        with open(FAILED, "rb") as capture:
            piped = run("--calls", "-", data=capture.read()).stdout.decode().splitlines()
        lines = run("--calls", FAILED).stdout.decode().splitlines()
        self.assertEqual(sorted(piped), sorted(lines))


def asked(number, sequence=1):
    """An admission request of the call with this number."""
    request = failed_calls.ARQ.replace(failed_calls.BASE_CALL, number.to_bytes(16, "big"))
    return request[:2] + struct.pack(">H", sequence) + request[4:]


def ras_capture(messages):
    return capture(ethernet(ipv4(17, udp(message))) for message in messages)


class Bounds(unittest.TestCase):
    def calls_of(self, *messages):
        """The number of calls among these RAS messages, which come all at once."""
        return int(re.search(rb", calls: (\d+)", run("--stats", data=ras_capture(messages)).stdout)[1])

    def test_ended_calls_are_dropped_before_the_oldest_open_one(self):
        disengage = failed_calls.DRQ.replace(failed_calls.BASE_CALL, (1).to_bytes(16, "big"))
        most = 16384
        self.assertEqual(self.calls_of(*map(asked, range(1, most + 1)), disengage), most)
        self.assertEqual(self.calls_of(*map(asked, range(1, most + 2)), disengage), most + 2)
        registrations = (failed_calls.RRQ[:2] + struct.pack(">H", n) + failed_calls.RRQ[4:] for n in range(most + 1))
        self.assertEqual(self.calls_of(asked(1), *registrations, disengage), 1)

    def test_parts_of_a_long_page_come_once_and_in_order(self):
        messages = 300
        data = ras_capture([asked(1), *(asked(2, sequence) for sequence in range(messages)), asked(1, 2)])
        with tempfile.NamedTemporaryFile(suffix=".pcap") as file:
            file.write(data)
            file.flush()
            of_file = run("--format", "html", file.name).stdout.decode()
        of_pipe = run("--format", "html", "-", data=data).stdout.decode()
        # The second call ends before the first one.
        for page, order in ((of_file, [1, 2]), (of_pipe, [2, 1])):
            self.assertEqual([int(call, 16) for call in re.findall(r'data-identifier="(\w+)"', page)], order)
            shown = re.findall(r"<pre>frame (\d+) ", page)
            first = ["1", str(messages + 2)]
            second = [str(frame) for frame in range(2, messages + 2)]
            self.assertEqual(shown, first + second if order == [1, 2] else second + first)
            self.assertTrue(page.startswith("<!doctype html>\n") and page.endswith("</html>\n"))


class Filters(unittest.TestCase):
    def test_call_keeps_its_ras_messages(self):
        kept = [369, 370]
        self.assertEqual(frames(FAILED, "--call", "3"), kept)
        self.assertEqual(frames(FAILED, "--call", "ca06"), kept)
        self.assertEqual(frames(CALL, "--call", "202122"), frames(CALL, "--call", "1"))
        self.assertEqual(frames(CALL, "--call", "20212"), [])
        # Everything except discovery, registration and unregistration, including the answers that name no call.
        self.assertEqual(frames(CALL, "--call", "1"), frames(CALL)[4:-2])

    def test_party(self):
        self.assertEqual(calls("--party", "2003"), [3])
        self.assertEqual(frames(FAILED, "--party", "CARLA"), [365, 366])
        self.assertEqual(frames(FAILED, "--party", "198.51.100.4"), [367, 368])
        self.assertEqual(calls("--party", "192.0.2.11:50006"), [2])
        self.assertEqual(calls("--party", "192.0.2.1:1719"), list(range(1, 14)))  # the gatekeeper
        # The messages that precede the one with this port wait for it.
        self.assertEqual(frames(FAILED, "--party", "192.0.2.11:50006")[:2], [235, 236])

    def test_message(self):
        self.assertEqual(frames(CALL, "--message", "Call Proceeding"), frames(CALL, "--message", "callproceeding"))
        self.assertEqual(len(frames(CALL, "--message", "setup")), 1)
        self.assertEqual(frames(CALL, "--message", "admission") + frames(CALL, "--message", "call"), [])
        self.assertEqual(calls("--message", "openLogicalChannelReject"), [8])
        self.assertEqual(calls("--message", "terminalCapabilitySetReject"), [11])  # tunnelled
        self.assertEqual(calls("--message", "admissionReject", "--party", "2002"), [])
        ladder = run("--format", "ladder", "--message", "setup", CALL).stdout
        self.assertEqual(re.findall(rb"- (.+) -", ladder), [b"Setup (setup)"])

    def test_family(self):
        families = {family: frames(CALL, "--family", family) for family in ("ras", "q931", "h245")}
        self.assertEqual([len(found) for found in families.values()], [10, 6, 16])  # one Facility carries H.245
        self.assertEqual(calls("--family", "q931", "--until", "09:08"), [1, 2])

    def test_time(self):
        for since in ("2026-03-10T09:17:00Z", "2026-03-10 09:17", "09:17", "09:17:00.0"):
            self.assertEqual(calls("--since", since), [12, 13], since)
        self.assertEqual(calls("--since", "2026-03-11"), [])
        self.assertEqual(calls("--since", "09:11", "--until", "09:11:00.0"), [6])
        self.assertEqual(calls("--since", "09:11:00.015", "--until", "09:11:00.025"), [6])
        # At that time a call with signalling has nothing but a refused connection.
        refused = run("--calls", "--since", "08:18:00.1", "--until", "08:18:00.11", data=rare_calls.octets())
        self.assertEqual(len(refused.stdout.splitlines()), 1)
        for wrong in ("9:17", "-1:17", "24:00", "09:60", "09:17:60", "2026-02-30", "09:17:00x", "", "2026-03-10T"):
            self.assertEqual(run("--since", wrong, FAILED).returncode, 2, wrong)

    def test_faulty(self):
        self.assertEqual(calls("--faulty"), [2, 3, 6, 7, 8, 11, 13])
        self.assertEqual(frames(FAILED, "--faulty"), [367, 410])
        self.assertEqual(frames(FAILED, "--faulty", "--call", "7"), [410])

    def test_order_is_that_of_the_capture(self):
        found = frames(FAILED, "--party", "2001")
        wanted = set(found)
        self.assertEqual(found, [frame for frame in frames(FAILED) if frame in wanted])


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
