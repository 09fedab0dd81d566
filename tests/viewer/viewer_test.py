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
EMULATED = len(sys.argv) > 2
with open(sys.argv[1], "rb") as program:
    SANITIZED = b"__asan_init" in program.read()
TOP = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
with open(os.path.join(TOP, "samples", "call.pcap"), "rb") as sample:
    SAMPLE = sample.read()

GATEKEEPER_CONFIRM = "04800000060008914a0004060047004b002d003100c000020106b7"
RELEASE_COMPLETE = ("03000033080212675a080280907e00230525c0060008914a000458880011"
                    "00202122232425262728292a2b2c2d2e2f10800100")
CHANNEL_ACK = "22c000640480101c0000c0000214177600c00002141777"

SYN, DATA = 0x02, 0x18


def run(*arguments, data=b"", stdout=subprocess.PIPE):
    """The viewer's status and what it printed.

    Very rarely Wine ends with status 1 before the program has begun; then it is started once more, so that a viewer
    at fault fails all the same."""
    def start():
        ended = subprocess.run([*COMMAND, *arguments], input=data, stdout=stdout, stderr=subprocess.PIPE, timeout=120)
        ended.stderr = ended.stderr.replace(b"\r\n", b"\n")  # Windows line endings
        return ended

    result = start()
    if EMULATED and ended_before_the_viewer(result):
        print(f"started again: {result}", file=sys.stderr)
        result = start()
    return result


def ended_before_the_viewer(result):
    """True if the status is 1 but the viewer printed neither a message nor a complaint."""
    return result.returncode == 1 and not result.stdout and b"kelvra-dump: " not in result.stderr


def objects(result):
    return [json.loads(line) for line in result.stdout.decode("utf-8").splitlines()]


def decode_hex(family, text):
    return run("--as", family, "--input", "hex", "--format", "json", "-", data=text.encode())


def vectors(family):
    """The carried messages in a file of tests/data."""
    with open(os.path.join(TOP, "tests", "data", family + ".jsonl"), encoding="utf-8") as lines:
        return [json.loads(line) for line in lines]


def tpkt(message):
    return struct.pack(">BBH", 3, 0, 4 + len(message)) + message


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


def capture_pieces(frames, link_type=1, longest=65535):
    """The pieces of a capture of the frames, one at a time because it may be large."""
    yield struct.pack("<IHHIIII", 0xA1B2C3D4, 2, 4, 0, 0, 65535, link_type)
    for n, f in enumerate(frames):
        yield struct.pack("<IIII", 1700000000, n, len(f[:longest]), len(f)) + f[:longest]


def capture(frames, link_type=1, longest=65535):
    return b"".join(capture_pieces(frames, link_type, longest))


def segments(*pieces):
    """A capture of TCP segments: (sequence number, payload, [flags])."""
    return capture(ethernet(ipv4(6, tcp(*piece))) for piece in pieces)


class Usage(unittest.TestCase):
    def test_help_is_by_topic(self):
        result = run("--help")
        self.assertEqual(result.returncode, 0)
        for topic in (b"\nInput:", b"\nOutput:", b"\nFilters:", b"\nTimes:"):
            self.assertIn(topic, result.stdout)

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
            "complete": True, "message": {"gatekeeperConfirm": {
                "requestSeqNum": 1, "protocolIdentifier": "0.0.8.2250.0.4", "gatekeeperIdentifier": "GK-1",
                "rasAddress": {"ipAddress": {"ip": "C0000201", "port": 1719}}}}})

    def test_source_route_that_lost_its_tag(self):
        (printed,) = objects(decode_hex("ras", "00000001060008914a000410c000020106b7010a00000182010000000000"))
        self.assertEqual(printed["message"]["gatekeeperRequest"]["rasAddress"], {"ipSourceRoute": {
            "ip": "C0000201", "port": 1719, "route": ["0A000001"], "routing": {"extension-2": None}}})

    def test_null_alternatives_that_have_no_name(self):
        for text, name in (("27800160", "unknown-3"), ("278001800100", "extension-0")):
            (printed,) = objects(decode_hex("h245", text))
            self.assertEqual(printed["message"]["response"]["requestModeReject"]["cause"], {name: None})

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

    def test_line_that_is_not_hexadecimal(self):
        for line in ("0g", "123", "1 2"):
            result = decode_hex("ras", f"{GATEKEEPER_CONFIRM}\n{line}\n")
            self.assertEqual(result.returncode, 2, line)
            self.assertIn(b"line 2", result.stderr)
            self.assertEqual(len(objects(result)), 1)

    def test_message_above_the_largest_size(self):
        result = decode_hex("ras", "00" * 70000)
        self.assertEqual(result.returncode, 1)
        self.assertEqual([(o["ok"], o["result"]) for o in objects(result)], [(False, None)])

    def test_raw_octets_and_detection(self):
        raw = bytes.fromhex(GATEKEEPER_CONFIRM)
        for arguments, data in (([], raw), (["--input", "raw", "-"], raw), (["-"], GATEKEEPER_CONFIRM.encode())):
            result = run("--as", "ras", *arguments, data=data)
            self.assertEqual(result.returncode, 0)
            self.assertRegex(result.stdout, b'RAS +gatekeeperConfirm +seq 1  gk "GK-1"')
        # Faulty hexadecimal text is not a raw message, and a short raw message of letters is not text.
        for text in (GATEKEEPER_CONFIRM[:-1] + "G", "0x" + GATEKEEPER_CONFIRM):
            result = run("--as", "ras", data=text.encode())
            self.assertEqual(result.returncode, 2, text)
            self.assertIn(b"line 1: not", result.stderr)
        self.assertRegex(run("--as", "h245", data=b"J@").stdout, b"endSessionCommand")

    def test_tree(self):
        result = run("--as", "q931", "--format", "tree", data=RELEASE_COMPLETE.encode())
        self.assertIn(b"Release Complete (releaseComplete), 51 octets", result.stdout)
        self.assertIn(b"\n  callReferenceValue: 4711\n", result.stdout)

    def test_single_octet_elements_have_no_length_and_the_first_of_a_kind_counts(self):
        text = RELEASE_COMPLETE.replace("03000033", "0300003a").replace("675a08028090", "675a8090a1080280900802809f")
        result = run("--as", "q931", "--format", "tree", "--octets", data=text.encode())
        self.assertEqual(result.returncode, 0)
        self.assertRegex(result.stdout, rb"12\.0-15\.7 +causeValue: ")

    def test_elements_after_the_user_information_are_read(self):
        (whole,) = objects(decode_hex("q931", RELEASE_COMPLETE))
        cause = "08028090"
        (moved,) = objects(decode_hex("q931", RELEASE_COMPLETE.replace(cause, "") + cause))
        self.assertEqual(moved, whole)
        self.assertEqual(whole["message"]["causeValue"], 144)

    def test_empty_user_information_does_not_reach_into_the_next_element(self):
        (printed,) = objects(decode_hex("q931", "03000010" "080212675a" "7e0000" "08028090"))
        self.assertEqual(printed["fault"], {"octet": 9, "bit": 72, "member": "h323-UserInformation",
                                            "cause": "the user-user element is empty"})
        self.assertEqual(printed["message"], {"protocolDiscriminator": 8, "callReferenceValue": 4711,
                                              "messageType": 90, "causeValue": 144})

    def test_skipped_addition_that_claims_too_much_is_a_fault(self):
        # The additions of a NonStandardMessage are all unknown; the last one goes past the end.
        (printed,) = objects(decode_hex("h245", "00d8000040000003608648d80000400000"))
        self.assertEqual(printed["fault"]["member"], "request.nonStandard")
        self.assertEqual(printed["fault"]["cause"], "a length announces more octets than there are")

    def test_chosen_alternative_is_shown_though_an_earlier_member_has_a_fault(self):
        (printed,) = objects(decode_hex("h245", "0800320400590800032208c000"))
        self.assertEqual([fault["cause"] for fault in printed["faults"]],
                         ["no alternative has this index", "the message ends here"])
        self.assertEqual(printed["message"]["request"]["requestMode"]["requestedModes"][1][1],
                         {"type": {"nonStandard": {}}})

    def test_value_that_goes_past_its_open_type_is_a_fault_and_not_shown(self):
        # The callIdentifier is an octet short; the decoder takes the next one for its last.
        text = (RELEASE_COMPLETE.replace("03000033", "03000032").replace("7e0023", "7e0022")
                .replace("880011002021", "880010002021").replace("2e2f", "2e"))
        (printed,) = objects(decode_hex("q931", text))
        self.assertEqual((printed["ok"], printed["complete"]), (True, False))
        self.assertEqual(printed["fault"], {"octet": 46, "bit": 368, "member": "callIdentifier.guid", "resumed": True,
                                            "cause": "the open type around it ends here"})
        pdu = printed["message"]["h323-UserInformation"]["h323-uu-pdu"]
        self.assertNotIn("callIdentifier", pdu["h323-message-body"]["releaseComplete"])
        self.assertFalse(pdu["h245Tunnelling"])

    def test_summary_of_octets_that_are_no_message(self):
        result = run("--as", "q931", data=b"0300000508")
        self.assertRegex(result.stdout, rb"Q\.931 +\(nothing decoded\) +"
                         rb"\[octet 5: h323-UserInformation: there is no user-user element\]")
        result = run("--as", "h245", data=CHANNEL_ACK[:-2].encode())
        self.assertEqual(result.returncode, 1)
        self.assertRegex(result.stdout, rb"openLogicalChannelAck .*\[octet 21: .*tsapIdentifier: the message ends here\]")

    def test_registrations_of_version_3(self):
        text = "\n".join(v["hex"].replace("060008914a0004", "060008914a0003") for v in vectors("ras"))
        printed = [o["message"] for o in objects(decode_hex("ras", text))]
        requests = [m["registrationRequest"] for m in printed if "registrationRequest" in m]
        grants = [m["registrationConfirm"].get("preGrantedARQ", {}) for m in printed if "registrationConfirm" in m]
        for records in (requests, grants):
            self.assertTrue(any("versionThreeBoolean" in record for record in records))

    def test_longest_inputs(self):
        # 65,535 octets, including the spare one that RAS needs.
        self.assertEqual([(o["ok"], o["result"]) for o in objects(decode_hex("ras", "00" * 65535))], [(False, None)])
        self.assertEqual([o["result"] for o in objects(decode_hex("h245", "00" * 65535))], [0])
        self.assertEqual(decode_hex("ras", " " * ((1 << 20) + 1)).returncode, 2)
        self.assertEqual(decode_hex("ras", ("0x00, " * 100_000 + "\n") * 11).returncode, 2)  # over 2^20 octets
        self.assertEqual(run("--as", "ras", "--input", "raw", data=bytes((1 << 20) + 1)).returncode, 2)

    def test_hex_text(self):
        comment = "# longer, " * 10 + "\n"
        for text in (GATEKEEPER_CONFIRM + "\r\n", comment + GATEKEEPER_CONFIRM, GATEKEEPER_CONFIRM.upper()):
            result = run("--as", "ras", "--format", "json", data=text.encode())
            self.assertEqual((result.returncode, [o["result"] for o in objects(result)]), (0, [27]), text)
        self.assertEqual(run("--as", "ras", data=b"# nothing but a comment\n").stdout, b"")
        for digit in "0123456789abcdefABCDEF":
            self.assertEqual([o["octets"] for o in objects(decode_hex("h245", digit * 2))], [1], digit)

    def test_unwritable_output(self):
        with open("/dev/full", "wb") as full:
            for text in (GATEKEEPER_CONFIRM, "\n".join([GATEKEEPER_CONFIRM] * 2000)):
                result = run("--as", "ras", "--format", "json", data=text.encode(), stdout=full)
                self.assertEqual((result.returncode, b"cannot be written" in result.stderr), (2, True))

    def printed_identifier(self, units):
        text = "".join(f"{unit:04x}" for unit in units)
        (printed,) = objects(decode_hex("ras", GATEKEEPER_CONFIRM.replace("0047004b002d0031", text)))
        return printed["message"]["gatekeeperConfirm"]["gatekeeperIdentifier"]

    def test_characters_outside_the_first_plane(self):
        self.assertEqual(self.printed_identifier((0xD83D, 0xDE00, 0xDFFF, 0xD800)), "\U0001f600\ufffd\ufffd")
        self.assertEqual(self.printed_identifier((8, 12, 10, 9)), "\b\f\n\t")
        self.assertEqual(self.printed_identifier((13, 0x22, 0x5C, 0x20AC)), "\r\"\\\u20ac")

    def test_no_prefix_is_complete_or_shows_what_was_not_read(self):
        def parts(part, whole):
            """True if a tree is the start of another."""
            if isinstance(part, dict) and isinstance(whole, dict):
                return all(name in whole and parts(part[name], whole[name]) for name in part)
            if isinstance(part, list) and isinstance(whole, list):
                return len(part) <= len(whole) and all(map(parts, part, whole))
            return part == whole

        step = 29 if EMULATED or SANITIZED else 5
        for family in ("ras", "q931", "h245"):
            messages = [vector["hex"] for vector in vectors(family)]
            wholes = objects(decode_hex(family, "\n".join(messages)))
            cuts = [(n, size) for n, text in enumerate(messages) for size in range(2, len(text), 2)][::step]
            result = decode_hex(family, "\n".join(messages[n][:size] for n, size in cuts))
            self.assertEqual(result.returncode, 1)
            for (n, size), printed in zip(cuts, objects(result), strict=True):
                what = (family, n, size // 2)
                self.assertFalse(printed["complete"], what)
                self.assertLessEqual(printed["fault"]["octet"], size // 2, what)
                self.assertEqual(printed["fault"]["bit"] // 8, printed["fault"]["octet"], what)
                self.assertTrue(parts(printed["message"], wholes[n]["message"]), what)

    def test_q931_prefix_whose_lengths_fit_is_not_complete(self):
        for message in (bytes.fromhex(vector["hex"]) for vector in vectors("q931")[:20]):
            start = message.index(b"\x7e") + 3
            cuts = [tpkt(message[4:start - 2] + struct.pack(">H", size - start) + message[start:size])
                    for size in range(start + 1, len(message))]
            printed = objects(decode_hex("q931", "\n".join(cut.hex() for cut in cuts)))
            self.assertEqual([o["complete"] for o in printed], [False] * len(cuts))

    def test_times_version_and_color(self):
        self.assertRegex(run("--version").stdout, rb"^kelvra-dump \d+\.\d+\.\d+\r?\n$")
        self.assertEqual(run("--local", "--relative", data=b"").returncode, 2)
        plain = run("--as", "ras", data=GATEKEEPER_CONFIRM.encode()).stdout
        self.assertNotIn(b"\x1b", plain)
        self.assertIn(b"\x1b[1mgatekeeperConfirm\x1b[0m",
                      run("--as", "ras", "--color", "always", data=GATEKEEPER_CONFIRM.encode()).stdout)

    @unittest.skipIf(EMULATED, "a terminal is for native programs")
    def test_color_on_a_terminal_unless_the_environment_says_no(self):
        import pty
        for environment, colored in (({}, True), ({"NO_COLOR": ""}, True), ({"NO_COLOR": "1"}, False)):
            master, terminal = pty.openpty()
            settings = {**{k: v for k, v in os.environ.items() if k != "NO_COLOR"}, **environment}
            subprocess.run([*COMMAND, "--as", "ras"], input=GATEKEEPER_CONFIRM.encode(), stdout=terminal,
                           env=settings, timeout=60, check=True)
            os.close(terminal)
            self.assertEqual(b"\x1b[1m" in os.read(master, 4096), colored, environment)
            os.close(master)

    def test_both_lists_of_tunnelled_messages(self):
        for name in ("h245Control", "parallelH245Control"):
            message = next(v for v in vectors("q931") if f'"{name}": ["' in json.dumps(v["expected"]))
            self.assertIn(b"+ H.245", run("--as", "q931", data=message["hex"].encode()).stdout, name)

    def test_details_of_call_signalling(self):
        def summary(elements):
            call = bytes.fromhex(RELEASE_COMPLETE)
            call = call[4:9] + elements + call[call.index(b"\x7e"):]
            return run("--as", "q931", data=tpkt(call).hex().encode()).stdout
        self.assertRegex(summary(b"\x6c\x06\x01\x834001"), rb'crv 4711  from "4001"')
        self.assertRegex(summary(b"\x6c\x05\x814001"), rb'crv 4711  from "4001"')
        self.assertRegex(summary(b"\x08\x02\x80\x90"), rb'cause 16 normal call clearing\n')

    def test_digits_of_each_kind_of_party_number(self):
        data, public, private = "8303102078", "8303000288", "8303300298"
        request = f"4800fffe03{data}{public}{private}1044bea5dd00000040"
        self.assertIn(b'to "45", "55", "65"', run("--as", "ras", data=request.encode()).stdout)

    def test_details_of_each_call_in_a_report(self):
        lines = run("--as", "ras", data="\n".join(v["hex"] for v in vectors("ras")).encode()).stdout
        self.assertIn(b"  crv 57800  bandwidth 2224758916  crv 65535  bandwidth 2724314798\n", lines)

    def test_details_of_h245(self):
        lines = run("--as", "h245", data="\n".join(v["hex"] for v in vectors("h245")).encode()).stdout
        self.assertTrue(b"both h261VideoCapability" in lines and b"seq 18  transmit g729AnnexAwAnnexB\n" in lines)
        self.assertIn(b"conference terminalJoinedConference  terminal 125/88\n", lines)
        self.assertIn(b"channel 8048  limit 100 bit/s", run("--as", "h245", data=b"70e005001f6f0001").stdout)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
