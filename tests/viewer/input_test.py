#!/usr/bin/env python3
"""Tests of what kelvra-dump reads: pipes as octets come, several files, gzip, and hexadecimal text of other programs.

Usage: input_test.py KELVRA_DUMP [EMULATOR...]
"""
import gzip
import json
import os
import re
import queue
import socket
import subprocess
import sys
import tempfile
import threading
import unittest

from viewer_test import (COMMAND, EMULATED, GATEKEEPER_CONFIRM, RELEASE_COMPLETE, SAMPLE, SANITIZED, capture_pieces,
                         ethernet, ipv4, objects, run, tcp, udp)

RAS = bytes.fromhex(GATEKEEPER_CONFIRM)
CALL = bytes.fromhex(RELEASE_COMPLETE)
MOST_SECONDS = 30  # for an answer on a busy machine


class Conversation:
    """A viewer that a program writes to and reads from line by line."""

    def __init__(self, *arguments):
        self.viewer = subprocess.Popen([*COMMAND, "--format", "json", *arguments, "-"], stdin=subprocess.PIPE,
                                       stdout=subprocess.PIPE, stderr=subprocess.PIPE, bufsize=0)
        self.lines = queue.Queue()
        self.reader = threading.Thread(target=self.read)
        self.reader.start()

    def read(self):
        for line in self.viewer.stdout:
            self.lines.put(json.loads(line))

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.viewer.stdin.close()
        self.viewer.wait(MOST_SECONDS)
        self.reader.join()
        self.viewer.stdout.close()
        self.viewer.stderr.close()

    def write(self, data):
        self.viewer.stdin.write(data)

    def answer(self):
        return self.lines.get(timeout=MOST_SECONDS)["name"]


class Pipes(unittest.TestCase):
    def test_each_line_is_answered_before_the_next_is_written(self):
        with Conversation("--as", "ras") as viewer:
            for text in (GATEKEEPER_CONFIRM, "0000 " + GATEKEEPER_CONFIRM, GATEKEEPER_CONFIRM):
                viewer.write(text.encode() + b"\n")
                self.assertEqual(viewer.answer(), "gatekeeperRequest" if " " in text else "gatekeeperConfirm")

    def test_each_packet_is_answered_before_the_next_is_written(self):
        frames = (ethernet(ipv4(17, udp(RAS))), ethernet(ipv4(6, tcp(1, CALL))))
        header, *packets = capture_pieces(frames)
        with Conversation() as viewer:
            viewer.write(header[:3])
            viewer.write(header[3:])
            for packet, name in zip(packets, ("gatekeeperConfirm", "releaseComplete")):
                viewer.write(packet[:20])
                viewer.write(packet[20:])
                self.assertEqual(viewer.answer(), name)

    def test_a_compressed_member_is_unpacked_before_the_next_comes(self):
        with Conversation("--as", "ras") as viewer:
            for _ in range(2):
                viewer.write(gzip.compress(GATEKEEPER_CONFIRM.encode() + b"\n"))
                self.assertEqual(viewer.answer(), "gatekeeperConfirm")


class Files(unittest.TestCase):
    def run_on(self, *contents, options=("--format", "json")):
        """Runs the viewer on files with these contents; returns the result and their names."""
        with tempfile.TemporaryDirectory() as folder:
            names = [os.path.join(folder, str(n)) for n in range(len(contents))]
            for name, content in zip(names, contents):
                with open(name, "wb") as file:
                    file.write(content)
            return run(*options, *names), names

    @unittest.skipIf(EMULATED, "a socket of this system shows where each write ends")
    def test_option_l_writes_each_message_of_a_file_at_once(self):
        for options, is_at_once in ((("-l",), True), ((), False)):
            reader, writer = socket.socketpair(socket.AF_UNIX, socket.SOCK_SEQPACKET)
            with reader, tempfile.NamedTemporaryFile() as file:
                with writer:
                    file.write(SAMPLE)
                    file.flush()
                    run(*options, "--format", "json", file.name, stdout=writer)
                writes = list(iter(lambda: reader.recv(1 << 20), b""))
            self.assertEqual(b"".join(writes).count(b"\n"), 31)
            self.assertEqual(all(write.find(b"\n") == len(write) - 1 for write in writes), is_at_once)

    def test_each_line_names_its_file_and_frames_are_counted_anew(self):
        result, names = self.run_on(SAMPLE, SAMPLE)
        printed = objects(result)
        self.assertEqual([o["file"] for o in printed], [names[0]] * 31 + [names[1]] * 31)
        self.assertEqual([o.pop("file") and o for o in printed[:31]], [o.pop("file") and o for o in printed[31:]])
        result, names = self.run_on(SAMPLE, SAMPLE, options=())
        lines = result.stdout.splitlines()
        self.assertEqual(sum(line.startswith(names[1].encode() + b": ") for line in lines), 31)
        self.assertNotIn("file", objects(run("--format", "json", data=SAMPLE))[0])

    def test_connection_continues_in_the_next_file(self):
        header, *packets = capture_pieces(ethernet(ipv4(6, tcp(*s))) for s in ((1, CALL[:20]), (21, CALL[20:])))
        at_once = packets[0][:8] + packets[1][8:]  # with the same timestamp
        result, names = self.run_on(header + packets[0], header + at_once)
        self.assertEqual([(o["name"], o["file"], o["frame"]) for o in objects(result)],
                         [("releaseComplete", names[1], 1)])
        self.assertEqual((result.returncode, result.stderr), (0, b""))

    def test_a_message_that_waited_in_an_earlier_file_names_that_file(self):
        waiting = b"".join(capture_pieces(ethernet(ipv4(6, tcp(*s))) for s in ((1, CALL), (103, CALL))))
        result, names = self.run_on(waiting, SAMPLE)
        self.assertEqual([(o["frame"], o["file"] == names[0]) for o in objects(result) if o["name"] == "releaseComplete"],
                         [(1, True), (48, False), (2, True)])
        self.assertRegex(result.stderr, re.escape(names[0].encode()) + rb": frame \d+, [^\n]*: segments are missing\n")

    def test_a_file_that_cannot_be_read_ends_the_run_after_those_before_it(self):
        result, names = self.run_on(SAMPLE, SAMPLE[:-1], SAMPLE)
        self.assertEqual((result.returncode, len(objects(result))), (2, 61))
        self.assertIn(names[1].encode(), result.stderr)
        self.assertIn(b"ends within a packet", result.stderr)

    def test_compressed_files(self):
        whole = run("--format", "json", data=SAMPLE)
        half = len(SAMPLE) // 2
        members = gzip.compress(SAMPLE[:half]) + gzip.compress(b"") + gzip.compress(SAMPLE[half:])
        for data in (gzip.compress(SAMPLE), members, members + bytes(512)):
            self.assertEqual(run("--format", "json", data=data).stdout, whole.stdout)
            self.assertEqual(self.run_on(data)[0].stdout, whole.stdout)
        text = gzip.compress(GATEKEEPER_CONFIRM.encode())
        self.assertEqual(objects(run("--as", "ras", "--format", "json", data=text))[0]["name"], "gatekeeperConfirm")

    def test_compressed_files_that_are_damaged(self):
        data = gzip.compress(SAMPLE)
        wrong_sum = data[:-8] + bytes([data[-8] ^ 1]) + data[-7:]
        for wrong, complaint in ((data[:-1], b"end early"), (data[:40], b"end early"), (wrong_sum, b"damaged"),
                                 (data[:60] + bytes(40) + data[100:], b"damaged"), (data + b"x", b"something else"),
                                 (data + bytes(8) + data, b"something else")):
            result = run("--format", "json", data=wrong)
            self.assertEqual(result.returncode, 2)
            self.assertIn(complaint, result.stderr)
        not_compressed = run("--as", "h245", data=b"\x1f\x8b\x08\xe0")
        self.assertEqual((not_compressed.returncode, not_compressed.stderr), (1, b""))

    @unittest.skipIf(EMULATED or SANITIZED, "the memory of Wine or of a sanitizer would be measured")
    def test_gzip_bomb_takes_no_memory(self):
        import resource
        limit = lambda: resource.setrlimit(resource.RLIMIT_DATA, (64 << 20, 64 << 20))
        frame = next(iter([ethernet(ipv4(17, udp(bytes(1400), 5004)))]))
        _, packet = capture_pieces([frame])
        header = next(capture_pieces([]))
        for content in (header + packet * 100_000, b"#" + b" " * (1 << 27)):
            with tempfile.TemporaryFile() as source:
                source.write(gzip.compress(content, 1))
                source.seek(0)
                ended = subprocess.run([*COMMAND, "--as", "ras", "--input", "hex", "-"] if content[0] == ord("#")
                                       else [*COMMAND, "-"], stdin=source, capture_output=True, preexec_fn=limit,
                                       timeout=120, check=False)
            self.assertEqual(ended.returncode, 2 if content[0] == ord("#") else 0, ended.stderr)


def dump(data, width, line):
    """Formats octets line by line with a function of (offset, octets)."""
    return "".join(line(at, data[at:at + width]) + "\n" for at in range(0, len(data), width))


def characters(octets):
    return "".join(chr(o) if 32 <= o < 127 else "." for o in octets)


def spaced(octets, group=1):
    text = octets.hex()
    return " ".join(text[i:i + 2 * group] for i in range(0, len(text), 2 * group))


DUMPS = {
    "hexdump -C": lambda data: dump(data, 16, lambda at, o: f"{at:08x}  {spaced(o[:8])}  {spaced(o[8:])}".ljust(60) +
                                    f"|{characters(o)}|") + f"{len(data):08x}\n",
    "xxd": lambda data: dump(data, 16, lambda at, o: f"{at:08x}: {spaced(o, 2):<39}  {characters(o)}"),
    "xxd -g 1 -c 8": lambda data: dump(data, 8, lambda at, o: f"{at:08x}: {spaced(o):<23}  {characters(o)}"),
    "packet analyser": lambda data: dump(data, 16, lambda at, o: f"{at:04x}  {spaced(o):<47}   {characters(o)}"),
    "packet analyser, octets only": lambda data: dump(data, 16, lambda at, o: f"{at:04x}  {spaced(o)}"),
    "packet sniffer": lambda data: dump(data, 16, lambda at, o: f"\t0x{at:04x}:  {spaced(o, 2):<39}  {characters(o)}"),
    "od -A x -t x1z": lambda data: dump(data, 16, lambda at, o: f"{at:06x} {spaced(o):<47}  >{characters(o)}<") +
                      f"{len(data):06x}\n",
}

ARRAYS = {
    "array": lambda data: "unsigned char peer0_0[] = { /* Packet 3 */\n" +
             dump(data, 8, lambda at, o: ", ".join(f"0x{x:02x}" for x in o) + ", // 0x99")[:-1] + "\n};\n",
    "xxd -i": lambda data: "unsigned char setup[] = {\n" +
              ",\n".join("  " + ", ".join(f"0x{x:02X}" for x in data[at:at + 12]) for at in range(0, len(data), 12)) +
              f"\n}};\nunsigned int setup_len = {len(data)};\n",
    "xxd -i -u": lambda data: "SETUP[] = {\n" + ", ".join(f"0X{x:02X}" for x in data) + "\n};\n",
    "string": lambda data: "const char setup[33] =\n" +
              dump(data, 16, lambda at, o: '  "' + "".join(f"\\x{x:02x}" for x in o) + '"')[:-1] + ";\n",
    "octets alone": lambda data: dump(data, 16, lambda at, o: ", ".join(f"0x{x:x}" for x in o) + ","),
}


class HexadecimalText(unittest.TestCase):
    def read(self, text, family="q931", how="auto"):
        return run("--as", family, "--input", how, "--format", "json", data=text.encode())

    def check(self, text, expected):
        for how in ("auto", "hex"):
            result = self.read(text, how=how)
            self.assertEqual((result.returncode, result.stderr), (0, b""), text)
            self.assertEqual(objects(result), expected, text)

    def setUp(self):
        self.expected = objects(self.read(RELEASE_COMPLETE))

    def test_dumps_and_arrays_of_other_programs(self):
        for name, write in {**DUMPS, **ARRAYS}.items():
            with self.subTest(program=name):
                text = write(CALL)
                self.check(text, self.expected)
                self.check(f"# a comment\n\n{text}\n# another\n{text}", self.expected * 2)

    def test_a_dump_begins_where_the_offset_is_0_again(self):
        for name, write in DUMPS.items():
            with self.subTest(program=name):
                self.check(write(CALL) * 3, self.expected * 3)
                self.check(write(CALL) + "\n" + RELEASE_COMPLETE, self.expected * 2)

    def test_text_column_is_not_read_as_octets(self):
        data = bytes.fromhex("0300003308021267") + b"a" * 16 + b"ab cd ef"
        expected = objects(self.read(data.hex()))
        for name, write in DUMPS.items():
            if "-c 8" not in name:  # its character column may start like another octet
                with self.subTest(program=name):
                    self.assertEqual(objects(self.read(write(data))), expected)

    def test_gap_in_a_dump_is_reported(self):
        for name, write in DUMPS.items():
            lines = write(CALL).splitlines()
            for wrong in (lines[:1] + lines[2:], lines[:2] + lines[1:], lines[:1] + ["*"] + lines[3:]):
                with self.subTest(program=name, lines=wrong):
                    result = self.read("\n".join(wrong))
                    self.assertEqual((result.returncode, result.stdout), (2, b""))
                    self.assertRegex(result.stderr, b"line [23]: (the dump goes on at|not a line of a dump)")

    def test_malformed_arrays_are_reported(self):
        for text, line in (("x[] = {\n0x03, 0x100\n};", 2), ("x[] = {\n0x03,\n3\n};", 3), ("x[] = {\n0x03, 0x00", 3),
                           ("0x", 1), ("hello 0x03", 1), ("/* 0x03", 2), ('"\\x03" no', 1)):
            result = self.read(text, how="hex")
            self.assertEqual((result.returncode, result.stdout), (2, b""), text)
            self.assertIn(b"line %d: " % line, result.stderr, text)

    def test_plain_text_that_starts_with_zeros_is_not_a_dump(self):
        request = "00000001060008914a000410c000020106b7010a00000182010000000000"
        for group in (1, 2, 4):
            text = spaced(bytes.fromhex(request), group)
            printed = objects(self.read(text + "\n" + text, "ras"))
            self.assertEqual([o["octets"] for o in printed], [len(request) // 2] * 2)
        self.check(spaced(CALL, 2) + "\n" + spaced(CALL, 4), self.expected * 2)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
