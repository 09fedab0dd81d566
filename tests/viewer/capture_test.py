#!/usr/bin/env python3
"""Tests of what kelvra-dump finds in captures.

Usage: capture_test.py KELVRA_DUMP [EMULATOR...]
"""
import struct
import sys
import unittest

from viewer_test import (CHANNEL_ACK, DATA, GATEKEEPER_CONFIRM, RELEASE_COMPLETE, SAMPLE, SYN, capture, ethernet, ipv4,
                         ipv6, objects, run, segments, tcp, tpkt, udp)

RAS = bytes.fromhex(GATEKEEPER_CONFIRM)
CALL = bytes.fromhex(RELEASE_COMPLETE)
END = 2 ** 32  # sequence numbers wrap here


def answer(sequence, payload):
    """A segment of the answering side."""
    packet = struct.pack(">HHIIBBHHH", 1720, 40000, sequence, 1, 0x50, DATA, 8192, 0, 0) + payload
    return ethernet(struct.pack(">BBHHHBBHII", 0x45, 0, 20 + len(packet), 0, 0, 64, 6, 0,
                                0xC0000202, 0xC0000201) + packet)


def capture_at(*timed):
    """A capture of (second, frame)."""
    records = (struct.pack("<IIII", second, 0, len(f), len(f)) + f for second, f in timed)
    return struct.pack("<IHHIIII", 0xA1B2C3D4, 2, 4, 0, 0, 65535, 1) + b"".join(records)


class Captures(unittest.TestCase):
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
        self.assertIn('from "4001"  to "4002"  forward g711Ulaw64k  reverse g711Ulaw64k  media 192.0.2.10:5004/192.0.2.10:5005', summary)
        self.assertEqual(summary.count("+ H.245"), 2)

    def test_call_signalling_ports_are_learned_from_ras(self):
        expected = [o["name"] for o in objects(run("--format", "json", data=SAMPLE))]
        moved = SAMPLE.replace(struct.pack(">H", 1720), struct.pack(">H", 1820))
        self.assertNotEqual(moved, SAMPLE)
        self.assertEqual(self.names(moved), expected)

    def test_link_types_and_protocols(self):
        datagram = ipv4(17, udp(RAS))
        over6 = ipv6(17, udp(RAS))
        frames = ((1, ethernet(datagram)), (1, ethernet(datagram, vlan=True)), (1, ethernet(over6)), (101, over6),
                  (0, b"\x02\0\0\0" + datagram), (0, b"\x1e\0\0\0" + over6), (113, bytes(14) + b"\x08\0" + datagram),
                  (276, b"\x08\0" + bytes(18) + datagram), (276, b"\x86\xdd" + bytes(18) + over6))
        for link_type, frame in frames:
            self.assertEqual(self.names(capture([frame], link_type)), ["gatekeeperConfirm"], link_type)
        result = run("-", data=capture([b"x"], 147))
        self.assertEqual(result.returncode, 2)
        self.assertIn(b"link type", result.stderr)

    def test_fragments(self):
        datagram = udp(RAS)
        frames = [ethernet(ipv4(17, datagram[16:], 7, 2)), ethernet(ipv4(17, datagram[:16], 7, 0x2000))]
        self.assertEqual(self.names(capture(frames)), ["gatekeeperConfirm"])

    def test_fragments_that_are_missing(self):
        datagram, most, more = udp(RAS), 1024, 0x2000

        def fragment(of, payload, place, protocol=17):
            return ethernet(ipv4(protocol, payload, of, place))

        def check(frames, found, lacking):
            result = run("--format", "json", "-", data=capture(frames))
            self.assertEqual([o["name"] for o in objects(result)], found)
            self.assertEqual(result.returncode, 1 if lacking else 0)
            self.assertRegex(result.stderr, b"lack a fragment: %d\n$" % lacking if lacking else b"^$")

        begin, end = fragment(7, datagram[:16], more), fragment(7, datagram[16:], 2)
        others = [fragment(1000 + n, datagram[:16], more) for n in range(most)]
        check([begin, *others[1:], end], ["gatekeeperConfirm"], most - 1)
        check([begin, *others, end], [], most + 2)  # the oldest was dropped, so its end waits alone
        check([begin, end] * (most + 1), ["gatekeeperConfirm"] * (most + 1), 0)
        # What is not RAS is not missed: TCP, and datagrams whose first fragment has other ports.
        other_port, tcp_begin = fragment(8, udp(RAS, 5004)[:16], more), fragment(8, CALL[:16], more, 6)
        check([begin, tcp_begin, other_port, end], ["gatekeeperConfirm"], 0)
        no_begin, tcp_at_ras_port = fragment(8, datagram[16:], 2), fragment(9, datagram[:8], more, 6)
        check([begin, no_begin, tcp_at_ras_port, end], ["gatekeeperConfirm"], 1)

    def test_ports(self):
        data = capture([ethernet(ipv4(17, udp(RAS, 5000))), ethernet(ipv4(6, tcp(1, CALL, DATA, 5001)))])
        self.assertEqual(self.names(data), [])
        self.assertIn(b"no message found", run("-", data=data).stderr)
        self.assertNotIn(b"no message", run("-", "--call-port", "5001", data=data).stderr)
        self.assertEqual(self.names(data, "--ras-port", "5000", "--call-port", "5001"),
                         ["gatekeeperConfirm", "releaseComplete"])
        self.assertEqual(run("--as", "ras", data=data).returncode, 2)

    def test_segments_in_any_order(self):
        two, end = CALL * 2, 2 ** 32
        expected = ["releaseComplete"] * 2
        for first in (1000, end - 30):
            def piece(start, stop, first=first):
                return ((first + start) % end, two[start:stop])
            opening = ((first - 1) % end, b"", SYN)
            for order in ([(0, 102)], [(0, 2), (2, 60), (60, 102)], [(60, 102), (2, 60), (0, 2)], [(0, 60), (40, 102)]):
                with self.subTest(first=first, order=order):
                    self.assertEqual(self.names(segments(opening, *(piece(*o) for o in order))), expected)
            for order in ([(0, 30), (60, 102), (30, 60)], [(30, 102), (0, 30)], [(0, 102), (0, 102)],
                          [(30, 60), (30, 102), (0, 30)]):
                with self.subTest(first=first, joined=order):
                    self.assertEqual(self.names(segments(*(piece(*o) for o in order))), expected)

    def test_missing_segment(self):
        data = segments((0, b"", SYN), (1, CALL), (52, CALL[:20]), (103, CALL))
        self.assertEqual(self.names(data, status=1), ["releaseComplete"] * 2)

    def test_connection_out_of_step_is_dropped(self):
        for wrong in (b"\x04\0\0\x33", b"\x03\0\0\x05", b"\x03\0\0\x00"):
            data = segments((0, b"", SYN), (1, CALL + wrong + CALL), (107, CALL), (158, CALL))
            result = run("--format", "json", "-", data=data)
            self.assertEqual((result.returncode, len(objects(result))), (1, 1), wrong)
            self.assertEqual(result.stderr.count(b"out of step"), 1)

    def test_truncated_capture(self):
        data = capture([ethernet(ipv4(17, udp(RAS)))] * 2)
        self.assertEqual(self.names(data[:-5], status=2), ["gatekeeperConfirm"])
        waiting = segments((1, CALL), (103, CALL), (205, CALL))
        self.assertEqual(self.names(waiting[:-5], status=2), ["releaseComplete"] * 2)

    def test_frames_cut_off_by_the_capture(self):
        signalling = [ethernet(ipv4(17, udp(RAS))), ethernet(ipv4(6, tcp(1, CALL)))]
        media = ethernet(ipv4(17, udp(bytes(160), 5004)))
        for longest, cut_off in ((65535, 0), (60, 2), (40, 3)):
            result = run("-", data=capture([*signalling, media], longest=longest))
            self.assertEqual(result.returncode, 1 if cut_off else 0, longest)
            self.assertEqual(b"cut off by the capture: %d\n" % cut_off in result.stderr, cut_off > 0, result.stderr)

    def test_either_port_gives_the_family(self):
        for source, destination in ((40000, 1718), (1718, 40000), (40000, 1719), (1719, 40000)):
            datagram = struct.pack(">HHHH", source, destination, 8 + len(RAS), 0) + RAS
            self.assertEqual(self.names(capture([ethernet(ipv4(17, datagram))])), ["gatekeeperConfirm"],
                             (source, destination))

    def test_given_ports_add_to_the_usual_ones(self):
        data = capture([ethernet(ipv4(17, udp(RAS))), ethernet(ipv4(6, tcp(1, CALL)))])
        self.assertEqual(self.names(data, "--ras-port", "5000", "--call-port", "5001"),
                         ["gatekeeperConfirm", "releaseComplete"])

    def test_h245_port(self):
        message = bytes.fromhex(CHANNEL_ACK)
        data = capture([ethernet(ipv4(6, tcp(1, tpkt(message), DATA, 5002)))])
        self.assertEqual(self.names(data), [])
        self.assertEqual(self.names(data, "--h245-port", "5002"), ["openLogicalChannelAck"])

    def test_latest_announced_h245_addresses_are_kept(self):
        def announcement(port):
            return bytes.fromhex("0300002d08024ee46e3401e47003813432a17e0018050340060008914a0004"
                                 f"3a0000d7cca30100c0000202{port:04x}")

        def channel(port):
            return ethernet(ipv4(6, tcp(1, tpkt(bytes.fromhex(CHANNEL_ACK)), DATA, port)))

        first, most = 5000, 4096
        stream = b"".join(announcement(first + i) for i in range(most + 1))
        calls = [ethernet(ipv4(6, tcp(1 + i, stream[i:i + 1000]))) for i in range(0, len(stream), 1000)]
        printed = objects(run("--format", "json", data=capture([*calls, channel(first), channel(first + 1)])))
        self.assertEqual([o["name"] for o in printed], ["alerting"] * (most + 1) + ["openLogicalChannelAck"])
        self.assertEqual(printed[-1]["destination"], f"192.0.2.2:{first + 1}")

    def test_file_formats(self):
        frame = ethernet(ipv4(17, udp(RAS)))
        padding = bytes(-len(frame) % 4)
        enhanced = struct.pack("<IIIII", 0, *divmod(1700000000000001, END), len(frame), len(frame)) + frame + padding
        blocks = ((0x0A0D0D0A, struct.pack("<IHHq", 0x1A2B3C4D, 1, 0, -1)), (1, struct.pack("<HHI", 1, 0, 65535)),
                  (6, enhanced))
        files = [b"".join(struct.pack("<II", kind, 12 + len(body)) + body + struct.pack("<I", 12 + len(body))
                          for kind, body in blocks)]
        for order in "<>":
            for magic, fraction in ((0xA1B2C3D4, 1), (0xA1B23C4D, 1000)):
                files.append(struct.pack(order + "IHHIIII", magic, 2, 4, 0, 0, 65535, 1) +
                             struct.pack(order + "IIII", 1700000000, fraction, len(frame), len(frame)) + frame)
        for data in files:
            (printed,) = objects(run("--format", "json", data=data))
            self.assertEqual((printed["name"], printed["time"][-8:]), ("gatekeeperConfirm", ".000001Z"), data[:4])

    def test_more_link_types(self):
        datagram, over6 = ipv4(17, udp(RAS)), ipv6(17, udp(RAS))
        for link_type, frame in ((108, b"\0\0\0\2" + datagram), (228, datagram), (229, over6),
                                 (276, b"\x81\0" + bytes(18) + b"\0\5\x08\0" + datagram)):
            self.assertEqual(self.names(capture([frame], link_type)), ["gatekeeperConfirm"], link_type)

    def test_addresses(self):
        def source(packet):
            (printed,) = objects(run("--format", "json", data=capture([ethernet(packet)])))
            return printed["source"]
        for address, text in (("20010db8000000000001000000000001", "2001:db8::1:0:0:1"),
                              ("20010db8000000010000000000000abc", "2001:db8:0:1::abc"),
                              ("00000000000000000000000000000001", "::1"),
                              ("fe800001000200030004000500060000", "fe80:1:2:3:4:5:6:0"),
                              ("20010000000000000000000000000000", "2001::")):
            packet = ipv6(17, udp(RAS))
            self.assertEqual(source(packet[:8] + bytes.fromhex(address) + packet[24:]), f"[{text}]:40000")
        self.assertEqual(source(ipv6(4, ipv4(17, udp(RAS)))), "192.0.2.1:40000")
        self.assertEqual(source(ipv4(41, ipv6(17, udp(RAS)))), "[2001::]:40000")

    def test_answers_are_joined_where_the_acknowledgement_says(self):
        data = capture([ethernet(ipv4(6, struct.pack(">HHIIBBHHH", 40000, 1720, 1, 1000, 0x50, 0x10, 8192, 0, 0))),
                        answer(1000 + len(CALL), CALL), answer(1000, CALL)])
        self.assertEqual(self.names(data), ["releaseComplete"] * 2)

    def test_ports_reused(self):
        self.assertEqual(self.names(segments((0, b"", SYN), (1, CALL), (500, b"", SYN), (501, CALL))),
                         ["releaseComplete"] * 2)
        self.assertEqual(self.names(segments((1, CALL), (0x40000000, CALL))), ["releaseComplete"] * 2)

    def test_payload_of_a_syn(self):
        start, rest = CALL[:20], CALL[20:]
        for first in (0, END - 1):
            at = (first + 1) % END
            for pieces in ([(first, CALL, SYN)], [(first, start, SYN), (at + 20, rest)],
                           [(first, start, SYN)] * 2 + [(at + 20, rest)]):
                with self.subTest(pieces=pieces):
                    self.assertEqual(self.names(segments(*pieces)), ["releaseComplete"])
        data = segments((0, b"\x04" + CALL, SYN), (53, CALL))
        result = run("--format", "json", "-", data=data)
        self.assertEqual((result.returncode, objects(result)), (1, []))
        self.assertIn(b"out of step", result.stderr)

    def test_syn_seen_again_or_late(self):
        opening, start, rest = (0, b"", SYN), (1, CALL[:20]), (21, CALL[20:])
        for pieces in ((opening, start, opening, rest), (start, opening, rest), (start, rest, opening)):
            with self.subTest(pieces=pieces):
                self.assertEqual(self.names(segments(*pieces)), ["releaseComplete"])

    def test_gap_is_abandoned_after_a_minute(self):
        def call(sequence):
            return ethernet(ipv4(6, tcp(sequence, CALL)))
        ras = ethernet(ipv4(17, udp(RAS)))
        for second, expected in ((60, ["releaseComplete", "gatekeeperConfirm", "releaseComplete", "releaseComplete"]),
                                 (61, ["releaseComplete"] * 3 + ["gatekeeperConfirm"])):
            data = capture_at((1000, call(1)), (1000, call(103)), (1000 + second, call(154)), (1000 + second, ras))
            self.assertEqual(self.names(data, status=1), expected, second)

    def test_keep_alive(self):
        alive = b"\x03\0\0\x04"
        self.assertEqual(self.names(segments((0, b"", SYN), (1, alive + CALL + alive))), ["releaseComplete"])

    def test_shortest_and_longer_packets(self):
        data = segments((0, b"", SYN), (1, CALL + b"\x03\0\0\x06" + CALL))
        self.assertEqual(self.names(data, status=1), ["releaseComplete"])
        long = CALL[4:9] + b"\x2f\xfa" + bytes(250) + CALL[9:]
        data = segments((0, b"", SYN), (1, tpkt(long) + CALL))
        self.assertEqual(self.names(data), ["releaseComplete"] * 2)

    def test_resynchronises_until_a_message_is_found(self):
        self.assertEqual(self.names(segments((1, b"\x03"), (2, b"\0\0\1"), (5, CALL)), status=1), ["releaseComplete"])
        self.assertEqual(self.names(segments((1, CALL + b"\x04..."), (56, CALL)), status=1), ["releaseComplete"])

    def test_gap_where_numbers_wrap(self):
        data = segments((END - 133, b"", SYN), (END - 132, CALL), (21, CALL), (END - 30, CALL))
        self.assertEqual(self.names(data, status=1), ["releaseComplete"] * 3)

    def test_tree_of_the_sample(self):
        tree = run("--format", "tree", data=SAMPLE).stdout.decode()
        for part in ("frame 4  2023-11-14T22:13:20.052000Z  192.0.2.1:1719 -> 192.0.2.10:1719"
                     "  RAS registrationConfirm, 65 octets\n",
                     "\n    callSignalAddress: 1 element\n      [0] ipAddress  (192.0.2.1:1720)\n"
                     "        ip: \"C0000201\"\n",
                     "\n      [0] dialedDigits: \"4001\"\n      [1] h323-ID: \"Alice Weber\"\n",
                     "\n  tunnelled H.245 userInput\n    indication\n      userInput\n        alphanumeric: \"12#\"\n"):
            self.assertIn(part, tree)
        summary = run(data=SAMPLE).stdout.decode()
        self.assertIn("22:13:20.078000  ", summary)
        self.assertRegex(summary, r"Facility \(facility\) +crv 4711  reason undefinedReason\n"
                                  r" +\+ H\.245  userInput +input \"12#\"\n")


    def test_one_octet_that_the_capture_lacks_is_noticed(self):
        frame = ethernet(ipv4(17, udp(RAS)))
        result = run("-", data=capture([frame], longest=len(frame) - 1))
        self.assertIn(b"cut off by the capture: 1\n", result.stderr)

    def test_shortest_packets(self):
        for port, shortest in ((1720, 7), (5002, 5)):
            packet = b"\x03\0\0" + bytes([shortest]) + bytes(shortest - 4)
            data = capture([ethernet(ipv4(6, tcp(0, b"", SYN, port))), ethernet(ipv4(6, tcp(1, packet, DATA, port)))])
            result = run("--format", "json", "--h245-port", "5002", data=data)
            self.assertEqual((len(objects(result)), b"out of step" in result.stderr), (1, False), port)

    def test_late_syn_in_the_middle_of_a_packet(self):
        for pieces in (((21, CALL[20:]), (0, b"", SYN), (1, CALL[:20])),
                       ((41, CALL[40:]), (21, CALL[20:40]), (0, b"", SYN), (1, CALL[:20])),
                       ((21, CALL[20:]), (0, CALL[:20], SYN))):
            self.assertEqual(self.names(segments(*pieces)), ["releaseComplete"], pieces)
        data = segments((21, CALL[20:]), (0, b"", SYN), (52, CALL), (1, CALL[:20]))
        self.assertEqual(self.names(data), ["releaseComplete"] * 2)

    def test_gap_is_passed_when_much_waits(self):
        ras = ethernet(ipv4(17, udp(RAS)))

        def order(count, size):
            """True if the gap is skipped after this many segments, before a RAS message arrives."""
            waiting = [ethernet(ipv4(6, tcp(200 + i * size, (CALL + bytes(size))[:size]))) for i in range(count)]
            frames = [ethernet(ipv4(6, tcp(0, b"", SYN))), *waiting, ras]
            return objects(run("--format", "json", data=capture(frames)))[0]["family"] == "q931"
        self.assertEqual([order(n, 60) for n in (256, 257)], [False, True])
        self.assertEqual([order(n, 32_000) for n in (4, 5)], [False, True])
        # Segments that waited and were delivered do not count.
        swapped = (ethernet(ipv4(6, tcp(at, CALL))) for i in range(2000) for at in (52 + i * 102, 1 + i * 102))
        opening = ethernet(ipv4(6, tcp(0, b"", SYN)))
        self.assertEqual(self.names(capture([opening, *swapped])), ["releaseComplete"] * 4000)

    def test_each_gap_has_its_minute(self):
        def call(sequence):
            return ethernet(ipv4(6, tcp(sequence, CALL)))
        data = capture_at((1000, call(1)), (1001, call(103)), (1050, call(52)), (1062, call(205)), (1070, call(154)))
        self.assertEqual(self.names(data), ["releaseComplete"] * 5)
        # The first gap is passed after its minute, the second is filled.
        data = capture_at((1000, call(1)), (1000, call(103)), (1061, call(205)), (1062, call(256)), (1063, call(154)))
        self.assertEqual(self.names(data, status=1), ["releaseComplete"] * 5)

    def test_ports_reused_without_a_syn(self):
        for first, second in ((1, 0x40000000), (0x40000000, 1)):
            data = segments((first, CALL[:20]), (second, CALL))
            self.assertEqual(self.names(data, status=1), ["releaseComplete"])
        # A reset may have any sequence number and carries nothing.
        data = segments((1, CALL[:20]), (0x40000000, b"", 0x04), (21, CALL[20:]))
        self.assertEqual(self.names(data), ["releaseComplete"])

    def test_fragment_that_shows_another_port_counts_for_the_whole_packet(self):
        datagram = udp(bytes(64), 5004)
        frames = [ethernet(ipv4(17, datagram[:16], 7, 0x2000)), ethernet(ipv4(17, datagram[16:32], 7, 0x2002)),
                  ethernet(ipv4(17, udp(RAS)))]
        self.assertEqual(self.names(capture(frames)), ["gatekeeperConfirm"])

    def test_fragments_that_overlap_or_come_twice(self):
        datagram, more = udp(RAS), 0x2000
        begin, middle, end = ((datagram[:16], more), (datagram[8:24], more | 1), (datagram[16:], 2))
        for order in ((begin, middle, end), (end, middle, begin), (begin, begin, end), (middle, end, end, begin)):
            frames = [ethernet(ipv4(17, octets, 7, place)) for octets, place in order]
            self.assertEqual(self.names(capture(frames)), ["gatekeeperConfirm"])

        # The last fragment says where the packet ends.
        longer = CALL + bytes(4) + CALL[:4]
        frames = [ethernet(ipv4(6, tcp(1, longer), 7, 0x2000)), ethernet(ipv4(6, tcp(1, longer)[56:71], 7, 7))]
        self.assertEqual(self.names(capture([*frames, ethernet(ipv4(6, tcp(1 + len(CALL), CALL)))])),
                         ["releaseComplete"] * 2)

        # Of two at one place, the first counts; here the packet then lacks its end.
        frames = [ethernet(ipv4(17, octets, 7, place)) for octets, place in (begin, (datagram[16:24], more | 2), end)]
        self.assertEqual(self.names(capture(frames), status=1), [])

    def test_fragments_of_two_senders_are_kept_apart(self):
        datagram = udp(RAS)
        begin, end = ethernet(ipv4(17, datagram[:16], 7, 0x2000)), ethernet(ipv4(17, datagram[16:], 7, 2))
        for at in (23, 29, 33):  # the protocol, the last octets of the source and destination addresses
            other = end[:at] + b"\x63" + end[at + 1:]
            self.assertEqual(self.names(capture([begin, other]), status=1), [])

    def test_extension_headers_of_ipv6(self):
        def extended(protocol, header, payload, kind=17):
            return ethernet(ipv6(protocol, bytes([kind]) + header[1:] + payload))
        eight, sixteen = bytes(8), b"\0\1" + bytes(14)
        datagram = udp(RAS)
        for protocol in (0, 43, 60):
            for header in (eight, sixteen):
                self.assertEqual(self.names(capture([extended(protocol, header, datagram)])), ["gatekeeperConfirm"])
        authentication = b"\0\2" + bytes(14)
        self.assertEqual(self.names(capture([extended(51, authentication, datagram)])), ["gatekeeperConfirm"])
        self.assertEqual(self.names(capture([extended(0, eight, b"\x11" + bytes(7) + datagram, 60)])),
                         ["gatekeeperConfirm"])

        def fragment(octets, place, identification=7):
            return extended(44, struct.pack(">BBHI", 0, 0, place, identification), octets)
        frames = [fragment(datagram[16:], 16), fragment(datagram[:16], 1)]
        self.assertEqual(self.names(capture(frames)), ["gatekeeperConfirm"])
        self.assertEqual(self.names(capture([fragment(datagram, 0)])), ["gatekeeperConfirm"])
        self.assertEqual(self.names(capture([fragment(datagram[16:], 16, 8), frames[1]]), status=1), [])

    def test_lengths_that_leave_octets_out(self):
        datagram = ethernet(ipv4(17, udp(RAS)))
        padded = struct.pack(">HHHH", 40000, 1719, 8 + len(RAS), 0) + RAS + b"padding"
        for frame in (datagram + bytes(20), ethernet(ipv4(17, padded)), ethernet(ipv6(17, udp(RAS))) + bytes(4)):
            (printed,) = objects(run("--format", "json", data=capture([frame])))
            self.assertEqual(printed["octets"], len(RAS))
        unknown = bytearray(datagram)
        unknown[16:18] = b"\0\0"  # the sender's hardware fills in the length
        self.assertEqual(self.names(capture([bytes(unknown)])), ["gatekeeperConfirm"])

    def test_tags_of_several_vlans(self):
        frame = bytes(12) + b"\x88\xa8\0\1\x81\0\0\2\x08\0" + ipv4(17, udp(RAS))
        self.assertEqual(self.names(capture([frame])), ["gatekeeperConfirm"])


class PcapngBlocks(unittest.TestCase):
    FRAME = ethernet(ipv4(17, udp(RAS)))

    def block(self, kind, body, length=None):
        body += bytes(-len(body) % 4)
        size = 12 + len(body)
        return struct.pack(self.order + "II", kind, length or size) + body + struct.pack(self.order + "I", size)

    def section(self):
        return self.block(0x0A0D0D0A, struct.pack(self.order + "IHHq", 0x1A2B3C4D, 1, 0, -1))

    def interface(self, *options, link_type=1, longest=0):
        body = struct.pack(self.order + "HHI", link_type, 0, longest)
        for code, value in options:
            body += struct.pack(self.order + "HH", code, len(value)) + value + bytes(-len(value) % 4)
        return self.block(1, body)

    def enhanced(self, time=0, interface=0, frame=FRAME, captured=None):
        header = struct.pack(self.order + "IIIII", interface, time >> 32, time & 0xFFFFFFFF,
                             len(frame) if captured is None else captured, len(frame))
        return self.block(6, header + frame)

    def times(self, data):
        result = run("--format", "json", data=data)
        self.assertEqual((result.returncode, result.stderr), (0, b""))
        return [o["time"] for o in objects(result)]

    def setUp(self):
        self.order = "<"

    def test_blocks_of_either_order(self):
        moment = 1_700_000_000_000_001
        for self.order in "<>":
            simple = self.block(3, struct.pack(self.order + "I", len(self.FRAME)) + self.FRAME)
            old = self.block(2, struct.pack(self.order + "HHIIII", 0, 0, *divmod(moment, END), len(self.FRAME),
                                            len(self.FRAME)) + self.FRAME)
            data = (self.section() + self.block(0xBAD, b"unknown block" * 100_000) + self.interface() +
                    self.enhanced(moment) + simple + old)
            self.assertEqual(self.times(data), ["2023-11-14T22:13:20.000001Z", "1970-01-01T00:00:00.000000Z",
                                                "2023-11-14T22:13:20.000001Z"])

    def test_sections_of_both_orders(self):
        data = b""
        for self.order in "<>":
            data += self.section() + self.interface() + self.enhanced()
        self.assertEqual(len(self.times(data)), 2)

    def test_units_of_time(self):
        for resolution, time in ((0, 1), (3, 1500), (6, 1_500_000), (9, 1_500_000_999), (15, 1_500_000 * 10 ** 9),
                                 (0x81, 3), (0xA0, 3 << 31)):
            fraction = "000000" if resolution == 0 else "500000"
            data = self.section() + self.interface((9, bytes([resolution]))) + self.enhanced(time)
            self.assertEqual(self.times(data), [f"1970-01-01T00:00:01.{fraction}Z"], resolution)
        for self.order, offset, second in (("<", 2, "00:00:03"), ("<", -1, "00:00:00"), (">", 2, "00:00:03")):
            options = ((2, b"eth0"), (14, struct.pack(self.order + "q", offset)))
            data = self.section() + self.interface(*options) + self.enhanced(10 ** 6)
            self.assertEqual(self.times(data), [f"1970-01-01T{second}.000000Z"])

    def test_days_and_times_of_day_before_1970(self):
        data = self.section() + self.interface((14, struct.pack("<q", -1))) + self.enhanced() + self.enhanced(10 ** 6)
        lines = run(data=data).stdout.decode().splitlines()
        self.assertEqual([line[:26].rstrip() for line in lines],
                         ["1969-12-31", "   1  23:59:59.000000  192", "1970-01-01", "   2  00:00:00.000000  192"])
        self.assertEqual(len(run("--since", "23:59", data=data).stdout.splitlines()), 2)

    def test_each_interface_has_its_link_type_and_units(self):
        raw = ipv4(17, udp(RAS))
        data = (self.section() + self.interface() + self.interface((9, b"\0"), link_type=101) +
                self.enhanced(2_000_000) + self.enhanced(3, 1, raw))
        self.assertEqual(self.times(data), ["1970-01-01T00:00:02.000000Z", "1970-01-01T00:00:03.000000Z"])

    def test_a_simple_packet_ends_where_its_interface_cuts_off(self):
        simple = self.block(3, struct.pack("<I", len(self.FRAME)) + self.FRAME[:60] + b"pad?")
        result = run("--format", "json", data=self.section() + self.interface(longest=60) + simple)
        self.assertEqual([o["octets"] for o in objects(result)], [60 - 42])
        self.assertIn(b"cut off by the capture: 1", result.stderr)

    def test_wrong_blocks(self):
        start = self.section() + self.interface()
        whole = self.enhanced()
        wrong_blocks = (
            (whole[:-1], "ends within"), (whole[:-4] + bytes(4), "two lengths"), (self.block(6, bytes(8)), "too short"),
            (self.enhanced(captured=1000), "longer than"), (self.enhanced(interface=1), "no interface"),
            (self.section() + self.enhanced(), "no interface"), (self.block(6, b"", 8), "wrong length"),
            (self.block(5, b"", 13), "wrong length"), (self.block(5, b"", 1000), "ends within"),
            (self.block(6, b"", 0xFFFFFFF0), "longer than any"), (self.interface((9, b"\x14")), "too finely"),
            (self.interface((9, b"\xc0")), "too finely"), (self.block(1, b""), "no link type"),
            (self.block(1, struct.pack("<HHIHH", 1, 0, 0, 2, 5) + b"eth0"), "too long"),
            (self.interface() * 0x10000, "too many"),
            (self.interface(link_type=147) + self.enhanced(0, 1), "link type 147"),
            (self.section()[:8] + bytes(20), "byte order"))
        for wrong, complaint in wrong_blocks:
            result = run("--format", "json", data=start + whole + wrong)
            self.assertEqual((result.returncode, len(objects(result))), (2, 1), complaint)
            self.assertIn(complaint.encode(), result.stderr)


class Bounds(unittest.TestCase):
    """What is dropped first at a limit: if the start of a message was dropped, its end is lost."""

    def is_kept(self, others):
        """True if the connection with half a message survives the other frames."""
        begin, rest = ethernet(ipv4(6, tcp(0, CALL[:20], SYN))), ethernet(ipv4(6, tcp(21, CALL[20:])))
        result = run("--format", "json", "--call-port", "5003", data=capture([begin, *others, rest]))
        return any(o["name"] == "releaseComplete" for o in objects(result))

    @staticmethod
    def other(number, payload=b"\x03", flags=SYN, sequence=0):
        segment = struct.pack(">HHIIBBHHH", 1024 + number, 5003, sequence, 1, 0x50, flags, 8192, 0, 0) + payload
        return ethernet(ipv4(6, segment))

    def test_least_recently_used_connections_are_dropped(self):
        others = [self.other(n) for n in range(8192)]
        self.assertTrue(self.is_kept(others[:-1]))
        self.assertFalse(self.is_kept(others))
        half = len(others) // 2
        again = ethernet(ipv4(6, tcp(1, CALL[:20])))
        self.assertTrue(self.is_kept([*others[:half], again, *others[half:]]))

    def test_waiting_octets_are_counted(self):
        much = b"\x03\0\xff\xff" + bytes(60_000)
        self.assertTrue(self.is_kept(self.other(n, much) for n in range(1100)))
        self.assertFalse(self.is_kept(self.other(n, much) for n in range(1130)))
        # After a connection is reopened, its earlier octets do not count.
        self.assertTrue(self.is_kept(self.other(1, much, SYN, n * 100_000) for n in range(1200)))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
