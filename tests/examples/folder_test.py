#!/usr/bin/env python3
"""The examples that read a folder of captures: folder_test.py KELVRA_DUMP

KELVRA_TEXT_LIBRARY names the library for Python.
"""
import json
import os
import pathlib
import sqlite3
import subprocess
import sys
import tempfile
import unittest

VIEWER = os.path.abspath(sys.argv[1])
TOP = pathlib.Path(__file__).resolve().parents[2]
SAMPLE = TOP / "samples" / "call.pcap"


def run(*command):
    environment = {**os.environ, "PYTHONPATH": str(TOP / "python")}
    return subprocess.run(list(map(str, command)), env=environment, capture_output=True, text=True, timeout=200)


def viewer_objects(path):
    return [json.loads(line) for line in run(VIEWER, "--format", "json", path).stdout.splitlines()]


class Folder(unittest.TestCase):
    """Two captures of the same name in different folders, one cut short, one from the next day."""

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.captures, self.output = pathlib.Path(folder.name) / "captures", pathlib.Path(folder.name) / "output"
        octets = SAMPLE.read_bytes()
        self.add("a.pcap", octets)
        self.add("more/a.pcap", self.a_day_later(octets))

    def add(self, name, octets):
        path = self.captures / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(octets)

    @staticmethod
    def a_day_later(octets):
        changed, at = bytearray(octets), 24
        while at < len(octets):
            seconds = int.from_bytes(octets[at:at + 4], "little") + 86400
            changed[at:at + 4] = seconds.to_bytes(4, "little")
            at += 16 + int.from_bytes(octets[at + 8:at + 12], "little")
        return bytes(changed)

    def all_objects(self):
        return [found for path in sorted(self.captures.rglob("*.pcap")) for found in viewer_objects(path)]

    # --- captures.py ---

    def count(self):
        return run(sys.executable, TOP / "examples" / "captures.py", self.captures, "2")

    def test_python_counts_each_capture_and_all(self):
        result = self.count()
        self.assertEqual((result.returncode, result.stderr), (0, ""))
        one = viewer_objects(SAMPLE)
        families = " ".join(f"{family} {sum(found['family'] == family for found in one)}" for family in ("ras", "q931", "h245"))
        counts = f"messages {len(one)} complete {len(one)} {families} losses 0"
        lines = result.stdout.splitlines()
        self.assertEqual(lines[:2], [f"a.pcap: {counts}", f"more/a.pcap: {counts}"])
        self.assertTrue(lines[2].startswith(f"all: messages {2 * len(one)} "), lines)

    def test_python_goes_on_after_a_capture_that_cannot_be_read(self):
        self.add("b.pcap", b"no capture")
        result = self.count()
        self.assertEqual(result.returncode, 1, result.stderr)
        self.assertEqual(len(result.stdout.splitlines()), 4)
        self.assertRegex(result.stdout, r"b\.pcap: messages 0 .*\(.*b\.pcap")

    # --- shards.sh ---

    def shard(self):
        return run(TOP / "examples" / "shards.sh", self.captures, self.output, VIEWER)

    def test_shards_hold_the_messages_of_the_viewer_by_day(self):
        result = self.shard()
        self.assertEqual((result.returncode, result.stderr), (0, ""))
        files = sorted(self.output.glob("day=*/*.jsonl"))
        self.assertEqual([file.name for file in files], ["a.pcap.jsonl", "more%a.pcap.jsonl"])
        for file in files:
            for line in file.read_text().splitlines():
                self.assertEqual("day=" + json.loads(line)["time"][:10], file.parent.name)
        objects = [json.loads(line) for file in files for line in file.read_text().splitlines()]
        self.assertEqual(objects, self.all_objects())

    def test_the_table_holds_all_of_each_message(self):
        self.shard()
        with sqlite3.connect(self.output / "messages.db") as database:
            rows = database.execute("SELECT frame, time, family, name, complete, octets, cause, message FROM messages "
                                    "ORDER BY day, rowid").fetchall()
        database.close()
        expected = [(o["frame"], o["time"], o["family"], o["name"], int(o["complete"]), o["octets"], "", o["message"])
                    for o in self.all_objects()]
        self.assertEqual([(*row[:-1], json.loads(row[-1])) for row in rows], expected)

    def test_shards_go_on_after_a_capture_cut_short(self):
        octets = SAMPLE.read_bytes()
        self.add("0.pcap", octets[:len(octets) // 2])
        result = self.shard()
        self.assertEqual(result.returncode, 1)
        self.assertEqual(len(list(self.output.glob("day=*/*.jsonl"))), 3)
        self.assertIn("0.pcap", (self.output / "log" / "0.pcap").read_text())
        self.assertIn("setup", result.stdout)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
