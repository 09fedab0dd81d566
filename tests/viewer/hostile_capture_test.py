#!/usr/bin/env python3
"""kelvra-dump on captures made to harm it: it ends in time, within bounded memory, and says what it lost.

Usage: hostile_capture_test.py KELVRA_DUMP [EMULATOR...]
"""
import json
import os
import random
import struct
import subprocess
import sys
import tempfile
import unittest

from viewer_test import (COMMAND, DATA, GATEKEEPER_CONFIRM, RELEASE_COMPLETE, SAMPLE, SANITIZED, SYN, capture,
                         capture_pieces, ethernet, ipv4, run, segments, tcp, tpkt, udp)

RAS = bytes.fromhex(GATEKEEPER_CONFIRM)
CALL = bytes.fromhex(RELEASE_COMPLETE)
ENDED = (0, 1, 2)  # all complete, some not, unreadable input; anything else is a crash
MOST_SECONDS = 20  # of processor time
MOST_KILOBYTES = 200_000
PCAP_HEADER, RECORD_HEADER = 24, 16


# Runs a command and prints its status, its most memory and its processor time. The system counts the memory of the
# process that starts a command as the command's own, and that of these tests is large.
MEASURE = """
import json, resource, subprocess, sys
status = subprocess.call(sys.argv[1:], stdout=subprocess.DEVNULL)
usage = resource.getrusage(resource.RUSAGE_CHILDREN)
print(json.dumps([status, usage.ru_maxrss, usage.ru_utime + usage.ru_stime]))
"""


def run_measured(frames):
    """The status, what was written to standard error, the most memory in kilobytes, and the seconds of processor
    time that a capture of the frames takes."""
    options = ":".join(filter(None, (os.environ.get("ASAN_OPTIONS"), "quarantine_size_mb=8")))
    with tempfile.TemporaryFile() as source:
        source.writelines(capture_pieces(frames))
        source.seek(0)
        measured = subprocess.run([sys.executable, "-c", MEASURE, *COMMAND, "-"], stdin=source, capture_output=True,
                                  check=True, env={**os.environ, "ASAN_OPTIONS": options})
    status, kilobytes, seconds = json.loads(measured.stdout)
    return status, measured.stderr, kilobytes, seconds


def connection(number, sequence, payload, flags=DATA):
    """A segment of one of many connections."""
    packet = ipv4(6, struct.pack(">HH", 1024 + number % 60000, 1720) + tcp(sequence, payload, flags)[4:])
    return ethernet(packet[:15] + bytes([number // 60000]) + packet[16:])


def names(result):
    return [json.loads(line)["name"] for line in result.stdout.splitlines()]


class HostileCaptures(unittest.TestCase):
    def assert_ends(self, data, note=None):
        result = run("--format", "json", "-", data=data)
        self.assertIn(result.returncode, ENDED, (note, result.stderr[-2000:]))
        return result

    def assert_bounded(self, frames):
        status, errors, kilobytes, seconds = run_measured(frames)
        self.assertIn(status, ENDED, errors[-2000:])
        self.assertLess(kilobytes, MOST_KILOBYTES)
        self.assertLess(seconds, MOST_SECONDS)
        return errors

    def test_file_cut_short(self):
        whole = names(self.assert_ends(SAMPLE))
        for size in range(1, len(SAMPLE), 97):
            printed = names(self.assert_ends(SAMPLE[:size], size))
            self.assertEqual(printed, whole[:len(printed)], size)

    def test_file_with_octets_changed(self):
        chance = random.Random(1)
        for _ in range(40):
            data = bytearray(SAMPLE)
            for _ in range(20):
                data[chance.randrange(PCAP_HEADER, len(data))] = chance.choice((0, 1, 0x7F, 0x80, 0xFF))
            self.assert_ends(bytes(data))

    def test_wrong_lengths(self):
        frame = ethernet(ipv4(17, udp(RAS)))
        segment = ethernet(ipv4(6, tcp(1, CALL)))
        record = PCAP_HEADER + 8  # the captured and original lengths of the first record
        ip_length = PCAP_HEADER + RECORD_HEADER + 14 + 2
        for what, at, form, values in (("captured", record, "<I", (0, 1, 13, 14, 33, 0xFFFF, 0xFFFFFFFF)),
                                       ("original", record + 4, "<I", (0, 1, 0xFFFFFFFF)),
                                       ("IP header", ip_length - 2, ">B", (0x40, 0x41, 0x4F, 0x00, 0x6F)),
                                       ("IP", ip_length, ">H", (0, 1, 19, 20, 27, 0xFFFF)),
                                       ("UDP", ip_length + 18 + 4, ">H", (0, 1, 7, 8, 0xFFFF)),
                                       ("TCP", ip_length + 18 + 12, ">B", (0x00, 0x10, 0x40, 0xF0))):
            for value in values:
                data = bytearray(capture([segment if what == "TCP" else frame, frame]))
                data[at:at + struct.calcsize(form)] = struct.pack(form, value)
                result = self.assert_ends(bytes(data), (what, value))
                if (what, value) == ("captured", 0xFFFFFFFF):
                    self.assertIn(b"longer than any can be", result.stderr)

    def test_packet_lengths_that_hold_no_packet(self):
        for length in range(4):
            wrong = struct.pack(">BBH", 3, 0, length)
            for stream in (wrong, wrong * 1000, CALL + wrong * 1000 + CALL):
                data = segments((0, b"", SYN), (1, stream), (1 + len(stream), CALL))
                result = self.assert_ends(data, length)
                self.assertEqual(result.returncode, 1)
                self.assertIn(b"out of step", result.stderr)
                self.assertEqual(names(result), ["releaseComplete"] * stream.startswith(CALL))

    def test_message_that_never_ends(self):
        data = segments((0, b"", SYN), (1, b"\x03\0\xff\xff" + bytes(1000)))
        result = self.assert_ends(data)
        self.assertEqual(result.returncode, 1)
        self.assertIn(b"ends within a message", result.stderr)

    def test_overlaps_that_disagree(self):
        other = bytes(len(CALL))
        for pieces in (((1, CALL), (1, other)), ((1, CALL[:30]), (11, other[:20]), (31, CALL[30:])),
                       ((21, other[20:]), (1, CALL)), ((0xFFFFFFF0, CALL), (1, CALL))):
            self.assert_ends(segments((0, b"", SYN), *pieces), pieces)

    def test_endless_stream_of_single_octets(self):
        stream = b"\x03\0\xff\xff" + bytes(65531)
        frames = [ethernet(ipv4(6, tcp(1 + i, stream[i % 65535:i % 65535 + 1]))) for i in range(150_000)]
        self.assert_bounded(frames)

    def test_endless_gap(self):
        # Each segment starts one octet after the end of the previous one.
        piece = b"\x03\0\xff\xff" + bytes(996)
        frames = [ethernet(ipv4(6, tcp(1 + i * 1001, piece))) for i in range(20_000)]
        self.assertIn(b"missing", self.assert_bounded([ethernet(ipv4(6, tcp(0, b"", SYN))), *frames]))

    def test_many_connections(self):
        self.assert_bounded(connection(i, 0, b"\x03\0\xff\xff" + bytes(500), SYN) for i in range(100_000))

    def test_connections_of_many_octets(self):
        # Without a bound, 4,000 would be too much to hold. A sanitizer is slow, and 1,500 are above the bound.
        most, size = 1_500 if SANITIZED else 4_000, 60_000
        for stream, complaint in ((b"\x03\0\xff\xff" + bytes(size - 4), b"ends within a message"),
                                  (bytes(size), b"out of step"),
                                  (tpkt(b"\x08" + bytes(size - 6)) + b"\x03", b"ends within a message")):
            riding = (connection(i, 0, stream, SYN) for i in range(most))
            following = (f for i in range(most) for f in (connection(i, 0, b"", SYN), connection(i, 1, stream)))
            for frames in (riding, following):
                with self.subTest(complaint=complaint, start=stream[:5], riding=frames is riding):
                    self.assertEqual(self.assert_bounded(frames).count(complaint), most)

    def test_fragments_that_never_make_a_packet(self):
        frames = [ethernet(ipv4(17, bytes(1000), i & 0xFFFF, 0x2000)) for i in range(60_000)]
        self.assert_bounded(frames)

    def test_endless_valid_messages(self):
        self.assert_bounded([ethernet(ipv4(17, udp(RAS)))] * 10_000)


class EndlessCalls(unittest.TestCase):
    """A call whose messages do not end, each from another host."""
    DISENGAGE_REQUEST = bytes.fromhex(
        "3e00030c0032003100330030005f00650070101112131415161718191a1b1c1d1e1f12672331001100202122232425262728292a2b2c"
        "2d2e2f09060047004b002d00310100")

    def printed(self, messages, *arguments):
        frames = []
        for i in range(messages):
            packet = ipv4(17, udp(self.DISENGAGE_REQUEST[:1] + struct.pack(">H", i) + self.DISENGAGE_REQUEST[3:]))
            frames.append(ethernet(packet[:12] + struct.pack(">I", 0x0A000000 + i) + packet[16:]))
        result = run(*arguments, "-", data=capture(frames))
        self.assertEqual(result.returncode, 0, result.stderr)
        return result.stdout.decode("utf-8").splitlines()

    def test_too_many_messages_begin_another_call(self):
        most = 8192
        _, first, *others = self.printed(most, "--calls")
        self.assertIn("10.0.0.0", first)
        self.assertEqual(others, [])
        self.assertIn("10.0.32.0", self.printed(most + 1, "--calls")[2])

    def test_too_many_hosts_share_the_last_column(self):
        for hosts, last in ((62, "10.0.0.61"), (63, "others"), (70, "others")):
            with self.subTest(hosts=hosts):
                names, *arrows = self.printed(hosts, "--format", "ladder")[2:]
                self.assertEqual((len(names.split()), names.split()[-1]), (min(hosts + 1, 64), last))
                self.assertEqual({len(arrow) for arrow in arrows[:hosts]}, {len(arrows[0])})
                self.assertTrue(arrows[hosts - 1].endswith("-|"))

    def test_a_call_is_found_by_any_of_its_hosts(self):
        for host, calls in (("10.0.0.1", 1), ("192.0.2.2", 1), ("192.0.2.3", 0)):
            _, *lines = self.printed(2, "--calls", "--party", host)
            self.assertEqual(len(lines), calls, host)


class HostileText(unittest.TestCase):
    IDENTIFIER = "0047004b002d0031"  # GK-1

    def printed(self, texts, form):
        messages = [GATEKEEPER_CONFIRM.replace(self.IDENTIFIER, "".join(f"{ord(c):04x}" for c in text[:4]))
                    for text in texts]
        result = run("--as", "ras", "--input", "hex", "--format", form, "-", data="\n".join(messages).encode())
        self.assertEqual(result.returncode, 0)
        return result.stdout.decode("utf-8")

    def test_characters_that_would_control_a_terminal(self):
        texts = ("\x1b[2J", "\x9b1A ", "\r\n\x07\x08", "a\u202eb\u2069", "\u2028\u2029\x7f\x00",
                 "\u200e\u200f\u061cx")
        for form in ("summary", "tree", "json"):
            with self.subTest(form=form):
                printed = self.printed(texts, form)
                acting = [c for c in printed if c in "".join(texts) and not c.isprintable() and c != "\n"]
                self.assertEqual(acting, [])

    def test_json_keeps_them(self):
        (line,) = self.printed(["\x1b[2J"], "json").splitlines()
        self.assertEqual(json.loads(line)["message"]["gatekeeperConfirm"]["gatekeeperIdentifier"], "\x1b[2J")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
