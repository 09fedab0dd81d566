#!/usr/bin/env python3
"""Compares whole outputs of kelvra-dump with the files of golden/, which a person has read.

Usage: golden_test.py KELVRA_DUMP [EMULATOR...]
       golden_test.py --renew KELVRA_DUMP     rewrites the files; review the difference
"""
import difflib
import os
import re
import sys
import unittest
import unittest.mock

RENEW = "--renew" in sys.argv[1:]
sys.argv = [a for a in sys.argv if a != "--renew"]

from viewer_test import EMULATED, RELEASE_COMPLETE, TOP, run  # noqa: E402

GOLDEN = os.path.join(os.path.dirname(os.path.abspath(__file__)), "golden")
SAMPLE = os.path.join(TOP, "samples", "call.pcap")
LATER_SAMPLE = os.path.join(TOP, "samples", "failed-calls.pcap")
# Three and a half hours east of Greenwich, without summer time.
os.environ["TZ"] = "EAST-3:30"


class Golden(unittest.TestCase):
    maxDiff = None

    def check(self, name, *arguments, data=b"", status=0, extract=lambda output: output):
        result = run(*arguments, data=data)
        self.assertEqual(result.returncode, status, result.stderr)
        printed = extract(result.stdout)
        path = os.path.join(GOLDEN, name)
        if RENEW:
            with open(path, "wb") as file:
                file.write(printed)
            return
        with open(path, "rb") as file:
            wanted = file.read()
        if wanted != printed:
            lines = (text.decode().splitlines() for text in (wanted, printed))
            self.fail("\n".join(difflib.unified_diff(*lines, name, "printed", lineterm="", n=1)))

    def check_family(self, family, prefix, formats, status):
        with open(os.path.join(GOLDEN, f"{prefix}{family}.hex"), "rb") as file:
            messages = file.read()
        for kind, arguments in formats.items():
            self.check(f"{prefix}{family}.{kind}", "--as", family, *arguments, "-", data=messages, status=status)

    def test_messages(self):
        # Some of the tunnelled H.245 messages are random octets.
        for family, status in (("ras", 0), ("q931", 1), ("h245", 0)):
            self.check_family(family, "", {"summary": [], "tree": ["--format", "tree"]}, status)

    def test_faulty_messages(self):
        for family in ("ras", "q931", "h245"):
            self.check_family(family, "faulty-", {"summary": [], "octets": ["--format", "tree", "--octets"],
                                                  "json": ["--format", "json"]}, 1)

    def test_names_of_q931(self):
        def names(summary):
            types, causes = summary.splitlines()[:128], summary.splitlines()[128:]
            for kind, lines, shown in (("type", types, r"Q\.931  (?!Type)(.+) \(rel"),
                                       ("cause", causes, r"cause \d+ (.+)")):
                found = (re.search(shown, line) for line in lines)
                yield from (f"{kind} 0x{n:02X}  {name[1]}\n" for n, name in enumerate(found) if name)

        types = (RELEASE_COMPLETE.replace("675a", f"67{number:02x}") for number in range(128))
        causes = (RELEASE_COMPLETE.replace("8090", f"80{number:02x}") for number in range(128, 256))
        self.check("q931.names", "--as", "q931", "-", data="\n".join([*types, *causes]).encode(),
                   extract=lambda summary: "".join(names(summary.decode())).encode())

    def test_sample_call(self):
        self.check("call.summary", SAMPLE)
        self.check("call.relative", "--relative", SAMPLE)
        # The page is in the order of calls, so its messages keep their dates.
        page = run("--format", "html", SAMPLE).stdout
        self.assertEqual(run("--relative", "--format", "html", SAMPLE).stdout, page)
        self.assertIn(b"  -73133199.987000  192.0.2.10:1719", run("--relative", LATER_SAMPLE, SAMPLE).stdout)
        self.check("call.colored", "--color", "always", SAMPLE)
        self.check("call.octets", "--format", "tree", "--octets", "--message", "gatekeeperRequest", SAMPLE)

    def test_page(self):
        def body(page):
            """Without the script and the trees."""
            return re.sub(rb"(?s)^.*?(?=<tbody)|</table>.*|(?<=<pre>).*?(?=</pre>)", b"", page)
        for call in ("ca09", "ca0e"):  # a refused connection, tunnelled messages
            self.check(f"{call}.html", "--format", "html", "--call", call, LATER_SAMPLE, status=1, extract=body)

    @unittest.skipIf(EMULATED, "has no TZ")
    def test_local_times(self):
        self.check("call.local", "--local", SAMPLE)
        self.check("call.local.ladder", "--local", "--format", "ladder", SAMPLE)
        for arguments in (["--format", "calls"], ["--format", "html"], ["--format", "tree"]):
            printed = run("--local", *arguments, SAMPLE).stdout.decode()
            self.assertRegex(printed, r"\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d\.\d{6}\+03:30")
            self.assertNotRegex(printed, r"T\d\d:\d\d:\d\d\.\d{6}Z")
        with unittest.mock.patch.dict(os.environ, {"TZ": "WEST3:30"}):
            self.assertIn(b"2023-11-14T18:43:20.013000-03:30", run("--local", "--format", "tree", SAMPLE).stdout)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
