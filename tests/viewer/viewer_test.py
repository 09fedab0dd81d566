#!/usr/bin/env python3
"""Tests of kelvra-dump as its user sees it.

Usage: viewer_test.py KELVRA_DUMP [EMULATOR...]
"""
import json
import os
import struct
import subprocess
import sys
import unittest

COMMAND = [*sys.argv[2:], sys.argv[1]]
TOP = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
with open(os.path.join(TOP, "samples", "call.pcap"), "rb") as sample:
    SAMPLE = sample.read()

GATEKEEPER_CONFIRM = "04800000060008914a0004060047004b002d003100c000020106b7"
RELEASE_COMPLETE = ("03000033080212675a080280907e00230525c0060008914a000458880011"
                    "00202122232425262728292a2b2c2d2e2f10800100")
CHANNEL_ACK = "22c000640480101c0000c0000214177600c00002141777"

SYN, DATA = 0x02, 0x18


def run(*arguments, data=b""):
    return subprocess.run([*COMMAND, *arguments], input=data, capture_output=True, timeout=120)


def objects(result):
    return [json.loads(line) for line in result.stdout.decode("utf-8").splitlines()]


def decode_hex(family, text):
    return run("--as", family, "--input", "hex", "--format", "json", "-", data=text.encode())


def ipv4(protocol, payload, identification=0, fragment=0):
    return struct.pack(">BBHHHBBHII", 0x45, 0, 20 + len(payload), identification, fragment, 64, protocol, 0,
                       0xC0000201, 0xC0000202) + payload


def ipv6(protocol, payload):
    return struct.pack(">IHBB", 6 << 28, len(payload), protocol, 64) + (b"\x20\x01" + bytes(14)) * 2 + payload


def udp(payload, port=1719):
    return struct.pack(">HHHH", 40000, port, 8 + len(payload), 0) + payload


def tcp(sequence, payload, flags=DATA, port=1720):
    return struct.pack(">HHIIBBHHH", 40000, port, sequence, 1, 0x50, flags, 8192, 0, 0) + payload


def ethernet(packet, vlan=False):
    tag = b"\x81\x00\x00\x05" if vlan else b""
    return bytes(12) + tag + (b"\x86\xdd" if packet[0] >> 4 == 6 else b"\x08\x00") + packet


def capture(frames, link_type=1, longest=65535):
    records = (struct.pack("<IIII", 1700000000, n, len(f[:longest]), len(f)) + f[:longest]
               for n, f in enumerate(frames))
    return struct.pack("<IHHIIII", 0xA1B2C3D4, 2, 4, 0, 0, 65535, link_type) + b"".join(records)


def segments(*pieces):
    """A capture of TCP segments: (sequence number, payload, [flags])."""
    return capture(ethernet(ipv4(6, tcp(*piece))) for piece in pieces)


class Usage(unittest.TestCase):
    def test_help_succeeds_and_explains_the_spare_octet(self):
        result = run("--help")
        self.assertEqual(result.returncode, 0)
        self.assertIn(b"spare zero octet", result.stdout)

    def test_bad_usage(self):
        for line in ("--format xml", "--no-such", "--ras-port 0", "--input hex", "no-such-file.pcap", "a b"):
            result = run(*line.split(), data=b"00\n")
            self.assertEqual(result.returncode, 2, line)
            self.assertTrue(result.stderr, line)
        for how in ("auto", "raw"):
            self.assertEqual(run("--as", "h245", "--input", how, data=b"").returncode, 2, how)


class SingleMessages(unittest.TestCase):
    def test_ras(self):
        result = decode_hex("ras", GATEKEEPER_CONFIRM)
        self.assertEqual(result.returncode, 0)
        (printed,) = objects(result)
        self.assertEqual(printed, {
            "family": "ras", "name": "gatekeeperConfirm", "result": 27, "ok": True, "octets": 27,
            "message": {"gatekeeperConfirm": {
                "requestSeqNum": 1, "protocolIdentifier": "0.0.8.2250.0.4", "gatekeeperIdentifier": "GK-1",
                "rasAddress": {"ipAddress": {"ip": "C0000201", "port": 1719}}}}})

    def test_source_route_that_lost_its_tag(self):
        (printed,) = objects(decode_hex("ras", "00000001060008914a000410c000020106b7010a00000182010000000000"))
        self.assertEqual(printed["message"]["gatekeeperRequest"]["rasAddress"], {"ipSourceRoute": {
            "ip": "C0000201", "port": 1719, "route": ["0A000001"], "routing": {"extension-2": None}}})

    def test_q931_and_h245(self):
        for family, text, expected in (("q931", RELEASE_COMPLETE, ("releaseComplete", 0, True)),
                                       ("h245", CHANNEL_ACK, ("openLogicalChannelAck", 1, True))):
            (printed,) = objects(decode_hex(family, text))
            self.assertEqual((printed["name"], printed["result"], printed["ok"]), expected)

    def test_malformed_line_does_not_stop_the_run(self):
        spaced = " ".join(GATEKEEPER_CONFIRM[i:i + 2] for i in range(0, 54, 2))
        text = f"# three messages\n\n{spaced}\n{GATEKEEPER_CONFIRM[:30]} # cut short\n{spaced.replace(' ', ':')}\n"
        result = decode_hex("ras", text)
        self.assertEqual(result.returncode, 1)
        self.assertEqual([(o["ok"], o["result"]) for o in objects(result)], [(True, 27), (False, 0), (True, 27)])

    def test_line_that_is_no_hexadecimal(self):
        for line in ("0g", "123", "1 2"):
            result = decode_hex("ras", f"{GATEKEEPER_CONFIRM}\n{line}\n")
            self.assertEqual(result.returncode, 2, line)
            self.assertIn(b"line 2", result.stderr)
            self.assertEqual(len(objects(result)), 1)

    def test_message_longer_than_any(self):
        result = decode_hex("ras", "00" * 70000)
        self.assertEqual(result.returncode, 1)
        self.assertEqual([(o["ok"], o["result"]) for o in objects(result)], [(False, None)])

    def test_raw_octets_and_detection(self):
        raw = bytes.fromhex(GATEKEEPER_CONFIRM)
        for arguments, data in (([], raw), (["--input", "raw", "-"], raw), (["-"], GATEKEEPER_CONFIRM.encode())):
            result = run("--as", "ras", *arguments, data=data)
            self.assertEqual(result.returncode, 0)
            self.assertRegex(result.stdout, b'RAS +gatekeeperConfirm +seq 1  gk "GK-1"')
        # A mistake in hexadecimal text is no raw message, and a short raw message of letters is no text.
        for text in (GATEKEEPER_CONFIRM[:-1] + "G", "0x" + GATEKEEPER_CONFIRM):
            result = run("--as", "ras", data=text.encode())
            self.assertEqual(result.returncode, 2, text)
            self.assertIn(b"line 1: not", result.stderr)
        self.assertRegex(run("--as", "h245", data=b"J@").stdout, b"endSessionCommand")

    def test_tree(self):
        result = run("--as", "q931", "--format", "tree", data=RELEASE_COMPLETE.encode())
        self.assertIn(b"Release Complete (releaseComplete), 51 octets", result.stdout)
        self.assertIn(b"\n  callReferenceValue: 4711\n", result.stdout)

    def test_summary_of_what_is_no_message(self):
        result = run("--as", "q931", data=b"0300000408")
        self.assertRegex(result.stdout, rb"Q\.931 +\(nothing decoded\) .*\[malformed, result -1\]")
        result = run("--as", "h245", data=CHANNEL_ACK[:-2].encode())
        self.assertEqual(result.returncode, 1)
        self.assertIn(b"[octets left over, or cut short, result 0]", result.stdout)


# As the viewer was configured, which its build may not have heeded.
READS_CAPTURES = os.environ.get("KELVRA_CAPTURE", "ON") == "ON"


@unittest.skipIf(READS_CAPTURES, "reads captures")
class WithoutCaptures(unittest.TestCase):
    def test_capture_is_refused(self):
        self.assertEqual(run(data=SAMPLE).returncode, 2)


@unittest.skipUnless(READS_CAPTURES, "reads no captures")
class Captures(unittest.TestCase):
    RAS = bytes.fromhex(GATEKEEPER_CONFIRM)
    CALL = bytes.fromhex(RELEASE_COMPLETE)

    def names(self, data, *arguments, status=0):
        result = run("--format", "json", *arguments, "-", data=data)
        self.assertEqual(result.returncode, status, result.stderr)
        return [o["name"] for o in objects(result)]

    def test_registration_lines(self):
        lines = run(data=SAMPLE).stdout.decode()
        for line in (
                'registrationRequest +seq 2  gk "GK-1"  alias "4001", "Alice Weber"'
                '  at 192.0.2.10:1720  ras 192.0.2.10:1719  ttl 300  keepAlive no',
                'registrationConfirm +seq 2  gk "GK-1"  endpoint "2130_ep"  alias "4001"  at 192.0.2.1:1720  ttl 300',
                'unregistrationRequest +seq 5  gk "GK-1"  endpoint "2130_ep"  at 192.0.2.10:1720'):
            self.assertRegex(lines, line)

    def test_sample_call(self):
        printed = objects(run("--format", "json", data=SAMPLE))
        self.assertEqual(len(printed), 31)
        self.assertEqual([printed[6][k] for k in ("frame", "time", "source", "destination", "name")],
                         [10, "2023-11-14T22:13:20.130000Z", "192.0.2.10:50001", "192.0.2.20:1720", "setup"])
        self.assertEqual(sum(o["family"] == "h245" for o in printed), 15)
        result = run(data=SAMPLE)
        self.assertEqual(result.returncode, 0)
        summary = result.stdout.decode()
        for details in ("receive g711Ulaw64k, g711Alaw64k, g7231, dtmf, h261VideoCapability\n",
                        "channel 101  forward g729AnnexA  media 192.0.2.10:5006/192.0.2.10:5007\n",
                        'input "5"  for 200 ms\n', "decision slave\n", "channel 101  by user\n", "end disconnect\n"):
            self.assertIn(details, summary)
        self.assertRegex(summary, r"Connect \(connect\) +crv 4711  ")
        self.assertIn('from "4001"  to "4002"  media 192.0.2.10:5004/192.0.2.10:5005', summary)
        self.assertEqual(summary.count("+ H.245"), 2)

    def test_link_types_and_protocols(self):
        datagram = ipv4(17, udp(self.RAS))
        over6 = ipv6(17, udp(self.RAS))
        frames = ((1, ethernet(datagram)), (1, ethernet(datagram, vlan=True)), (1, ethernet(over6)), (101, over6),
                  (0, b"\x02\0\0\0" + datagram), (0, b"\x1e\0\0\0" + over6), (113, bytes(14) + b"\x08\0" + datagram),
                  (276, b"\x08\0" + bytes(18) + datagram), (276, b"\x86\xdd" + bytes(18) + over6))
        for link_type, frame in frames:
            self.assertEqual(self.names(capture([frame], link_type)), ["gatekeeperConfirm"], link_type)
        result = run("-", data=capture([b"x"], 147))
        self.assertEqual(result.returncode, 2)
        self.assertIn(b"link type", result.stderr)

    def test_fragments(self):
        datagram = udp(self.RAS)
        frames = [ethernet(ipv4(17, datagram[16:], 7, 2)), ethernet(ipv4(17, datagram[:16], 7, 0x2000))]
        self.assertEqual(self.names(capture(frames)), ["gatekeeperConfirm"])

    def test_ports(self):
        data = capture([ethernet(ipv4(17, udp(self.RAS, 5000))), ethernet(ipv4(6, tcp(1, self.CALL, DATA, 5001)))])
        self.assertEqual(self.names(data), [])
        self.assertIn(b"no message found", run("-", data=data).stderr)
        self.assertNotIn(b"no message", run("-", "--call-port", "5001", data=data).stderr)
        self.assertEqual(self.names(data, "--ras-port", "5000", "--call-port", "5001"),
                         ["gatekeeperConfirm", "releaseComplete"])
        self.assertEqual(run("--as", "ras", data=data).returncode, 2)

    def test_segments_in_any_order(self):
        two, end = self.CALL * 2, 2 ** 32
        expected = ["releaseComplete"] * 2
        for first in (1000, end - 30):
            def piece(start, stop, first=first):
                return ((first + start) % end, two[start:stop])
            opening = ((first - 1) % end, b"", SYN)
            for order in ([(0, 102)], [(0, 2), (2, 60), (60, 102)], [(60, 102), (2, 60), (0, 2)], [(0, 60), (40, 102)]):
                with self.subTest(first=first, order=order):
                    self.assertEqual(self.names(segments(opening, *(piece(*o) for o in order))), expected)
            for order in ([(0, 30), (60, 102), (30, 60)], [(30, 102), (0, 30)], [(0, 102), (0, 102)]):
                with self.subTest(first=first, joined=order):
                    self.assertEqual(self.names(segments(*(piece(*o) for o in order))), expected)

    def test_missing_segment(self):
        data = segments((0, b"", SYN), (1, self.CALL), (52, self.CALL[:20]), (103, self.CALL))
        self.assertEqual(self.names(data, status=1), ["releaseComplete"] * 2)

    def test_out_of_step(self):
        for wrong in (b"\x04\0\0\x33", b"\x03\0\0\x05", b"\x03\0\0\x00"):
            data = segments((0, b"", SYN), (1, self.CALL + wrong + self.CALL), (107, self.CALL), (158, self.CALL))
            result = run("--format", "json", "-", data=data)
            self.assertEqual((result.returncode, len(objects(result))), (1, 1), wrong)
            self.assertEqual(result.stderr.count(b"out of step"), 1)

    def test_truncated_capture(self):
        data = capture([ethernet(ipv4(17, udp(self.RAS)))] * 2)
        self.assertEqual(self.names(data[:-5], status=2), ["gatekeeperConfirm"])

    def test_frames_cut_off_by_the_capture(self):
        signalling = [ethernet(ipv4(17, udp(self.RAS))), ethernet(ipv4(6, tcp(1, self.CALL)))]
        media = ethernet(ipv4(17, udp(bytes(160), 5004)))
        for longest, cut_off in ((65535, 0), (60, 2), (40, 3)):
            result = run("-", data=capture([*signalling, media], longest=longest))
            self.assertEqual(result.returncode, 1 if cut_off else 0, longest)
            self.assertEqual(b"cut off by the capture: %d\n" % cut_off in result.stderr, cut_off > 0, result.stderr)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
