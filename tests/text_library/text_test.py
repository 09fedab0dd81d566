#!/usr/bin/env python3
"""Tests that the C functions of kelvra_text agree with the viewer: text_test.py TEXT_LINES KELVRA_DUMP [EMULATOR...]"""
import json
import pathlib
import re
import subprocess
import sys
import tempfile
import unittest

PROGRAM, VIEWER, *EMULATOR = sys.argv[1:]
TOP = pathlib.Path(__file__).resolve().parents[2]
SAMPLE = TOP / "samples" / "call.pcap"
FAMILIES = ("ras", "q931", "h245")


def run(program, *arguments, text=""):
    result = subprocess.run([*EMULATOR, program, *map(str, arguments)], input=text.encode(), capture_output=True, timeout=200)
    return result.returncode, result.stdout.decode().splitlines(), result.stderr.decode().replace("\r", "")


def messages(family):
    """The carried messages; each also cut short and with an extra octet."""
    with open(TOP / "tests" / "data" / f"{family}.jsonl", encoding="utf-8") as lines:
        for line in lines:
            message = json.loads(line)["hex"]
            yield message
            for length in {2, len(message) // 4 * 2, len(message) - 2} - {0, len(message)}:
                yield message[:length]
            yield message + "00"


class Messages(unittest.TestCase):
    def test_objects_are_the_lines_of_the_viewer(self):
        for family in FAMILIES:
            with self.subTest(family):
                text = "".join(message + "\n" for message in messages(family))
                status, lines, errors = run(PROGRAM, family, text=text)
                self.assertEqual((status, errors), (0, ""))
                self.assertGreater(len(lines), 100)
                self.assertEqual(lines, run(VIEWER, "--as", family, "--input", "hex", "--format", "json", "-", text=text)[1])

    def test_verdict_and_fault_of_a_message_cut_short(self):
        _, (whole, cut), _ = run(PROGRAM, "ras", text="080000040600 08914A000520\n0800000406000891\n".replace(" ", ""))
        whole, cut = json.loads(whole), json.loads(cut)
        self.assertEqual((whole["name"], whole["complete"], whole["ok"]), ("gatekeeperReject", True, True))
        self.assertNotIn("fault", whole)
        self.assertEqual((cut["name"], cut["complete"]), ("gatekeeperReject", False))
        self.assertIn("cause", cut["fault"])

    def test_a_message_that_is_too_long_has_an_object(self):
        _, (line,), _ = run(PROGRAM, "h245", text="00" * 65536 + "\n")
        self.assertEqual(json.loads(line)["fault"]["cause"], "too long to be decoded")


class Arguments(unittest.TestCase):
    def test_wrong_arguments_have_an_answer(self):
        status, lines, errors = run(PROGRAM, "arguments", SAMPLE)
        self.assertEqual((status, errors), (0, ""))
        self.assertRegex(lines[0], r"^\d+\.\d+\.\d+$")
        self.assertEqual([f"kelvra-dump {lines[0]}"], run(VIEWER, "--version")[1])


class Captures(unittest.TestCase):
    def assert_same_as_viewer(self, octets, ports=(), options=()):
        with tempfile.TemporaryDirectory() as folder:
            file = pathlib.Path(folder) / "a.pcap"
            file.write_bytes(octets)
            status, lines, errors = run(PROGRAM, "capture", file, *ports)
            viewer_status, viewer_lines, viewer_errors = run(VIEWER, "--format", "json", *options, file)
        self.assertEqual(lines, viewer_lines)
        # Status 1 of the viewer reports incomplete messages and losses.
        self.assertEqual(status, 2 if viewer_status == 2 else 0, errors)
        said = [line.removeprefix("kelvra-dump: ") for line in viewer_errors.splitlines() if "no message found" not in line]
        heard = [re.sub("^(loss: |notice: |-3 )", "", line) for line in errors.splitlines()]
        self.assertEqual(heard, said)
        return lines, errors

    def test_the_sample(self):
        lines, _ = self.assert_same_as_viewer(SAMPLE.read_bytes())
        self.assertEqual(json.loads(lines[0])["frame"], 1)

    def test_a_capture_that_ends_within_a_packet_fails_after_its_messages(self):
        lines, errors = self.assert_same_as_viewer(SAMPLE.read_bytes()[:-7])
        self.assertIn("-3 ", errors)
        self.assertGreater(len(lines), 1)

    def test_octets_out_of_step_are_a_loss(self):
        octets = SAMPLE.read_bytes()
        start = octets.index(b"\x03\x00\x00")
        octets = octets[:start] + b"\x09" + octets[start + 1:]  # no TPKT header
        _, errors = self.assert_same_as_viewer(octets)
        self.assertIn("loss: ", errors)

    def test_a_message_that_waits_for_its_end_is_a_loss_at_the_end(self):
        octets = SAMPLE.read_bytes()
        start = octets.rindex(b"\x03\x00\x00")
        octets = octets[:start + 2] + b"\x7f" + octets[start + 3:]  # these octets never arrive
        _, errors = self.assert_same_as_viewer(octets)
        self.assertIn("loss: ", errors)

    def test_a_notice_is_no_loss(self):
        # Cut after the first segment of a message at an announced address.
        _, errors = self.assert_same_as_viewer(SAMPLE.read_bytes()[:2139])
        self.assertRegex(errors, "^loss: .*ends within a message\nnotice: no message was recognised at .*\n$")

    def test_further_ports(self):
        # 1719 becomes 1819, which only the option reveals.
        octets = SAMPLE.read_bytes().replace((1719).to_bytes(2, "big"), (1819).to_bytes(2, "big"))
        without, _ = self.assert_same_as_viewer(octets)
        lines, _ = self.assert_same_as_viewer(octets, ["ras:1819"], ["--ras-port", "1819"])
        self.assertGreater(len(lines), len(without))
        octets = octets.replace((1720).to_bytes(2, "big"), (1820).to_bytes(2, "big"))
        lines, _ = self.assert_same_as_viewer(octets, ["h245:30245"], ["--h245-port", "30245"])
        self.assertEqual(sum(json.loads(line)["family"] == "h245" for line in lines), 15)

    def test_what_is_no_capture_is_refused(self):
        with tempfile.TemporaryDirectory() as folder:
            file = pathlib.Path(folder) / "a.pcap"
            for octets in (b"", b"no capture"):
                file.write_bytes(octets)
                status, lines, errors = run(PROGRAM, "capture", file)
                self.assertEqual((status, lines), (2, []))
                self.assertTrue(errors.startswith("-3 "), errors)
            status, lines, errors = run(PROGRAM, "capture", pathlib.Path(folder) / "missing.pcap")
            self.assertEqual((status, lines), (2, []))
            self.assertIn("missing.pcap", errors)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
