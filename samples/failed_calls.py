#!/usr/bin/env python3
"""Makes samples/failed-calls.pcap, and the table of its calls in samples/README.md.

Usage: failed_calls.py

The messages are those of samples/call.pcap and of tests/data, which an encoder made that shares no code with this
library. Parties, addresses, numbers and reasons are exchanged in place. The capture is the same on every run;
tests/viewer/samples_test.py compares it, and decodes each message before and after the exchange.
"""
import collections
import datetime
import ipaddress
import json
import os
import re
import struct

HERE = os.path.dirname(os.path.abspath(__file__))
TOP = os.path.dirname(HERE)
CAPTURE = os.path.join(HERE, "failed-calls.pcap")
README = os.path.join(HERE, "README.md")
DAY = datetime.datetime(2026, 3, 10, tzinfo=datetime.timezone.utc)

GATEKEEPER = "192.0.2.1"
RAS, CALL_SIGNALLING, H245 = 1719, 1720, 30245
FIN_ACK, SYN, RST_ACK, DATA, ACK, SYN_ACK = 0x11, 0x02, 0x14, 0x18, 0x10, 0x12

# What the messages of samples/call.pcap say, where a call here says something else.
BASE_CONFERENCE = bytes(range(0x10, 0x20))
BASE_CALL = bytes(range(0x20, 0x30))
BASE_CALLER, BASE_CALLED = "192.0.2.10", "192.0.2.20"
BASE_REFERENCE = 4711
BASE_NAME, BASE_ENDPOINT = "Alice Weber", "2130_ep"

# Indexes of a CHOICE's alternatives.
RELEASE_REASONS = {"inConf": 10, "undefinedReason": 11}
AUDIO = {"g711Alaw64k": 1, "g711Ulaw64k": 3, "g729": 10, "g729AnnexA": 11}

NO_CALL_IDENTIFIER = bytes(16)

# An exchange of octets, and what it does to the message's JSON.
Change = collections.namedtuple("Change", "octets json")
# Octets ready to be sent; `base` and `changes` say how they came about.
Message = collections.namedtuple("Message", "family octets base changes", defaults=(None, ()))


def exchange(pairs, whole):
    """Exchanges all old parts at once, so that no new one is taken for an old one."""
    parts = dict(pairs)
    bar = b"|" if isinstance(whole, bytes) else "|"
    either = bar.join(re.escape(old) for old in sorted(parts, key=len, reverse=True))
    return re.sub(either, lambda found: parts[found.group()], whole) if parts else whole


def network(address):
    return ipaddress.ip_address(address).packed


def same_length(old, new):
    assert len(old) == len(new), (old, new)
    return old, new


def number(old, new):
    """Digits of a party number, and of dialedDigits, of which four take two octets."""
    def packed(digits):
        return b"\x01\x80" + bytes.fromhex("".join(f"{int(digit) + 3:x}" for digit in digits))
    return Change([same_length(packed(old), packed(new)), same_length(old.encode(), new.encode())],
                  [(f'"{old}"', f'"{new}"')])


def text(old, new):
    """A name in BMP characters, and in those of a Display element."""
    return Change([same_length(old.encode("utf-16-be"), new.encode("utf-16-be")), (old.encode(), new.encode())],
                  [(f'"{old}"', f'"{new}"')])


def host(old, new):
    return Change([(network(old), network(new))], [(f'"{network(old).hex().upper()}"', f'"{network(new).hex().upper()}"')])


def port(hosts, old, new):
    """A port, which follows its host: (old host, new host)."""
    before, after = (network(each) for each in hosts)
    return Change([(before + struct.pack(">H", old), after + struct.pack(">H", new))],
                  [(f'"{member}":{old}', f'"{member}":{new}') for member in ("port", "tsapIdentifier")])


def identifiers(reference, conference, call, turned=False):
    """The call reference, which stands alone in Q.931 and next to the conferenceID in RAS, and both GUIDs.

    Turned, a message of the calling side becomes one of the called side."""
    answer = 0x8000
    octets = [(BASE_CONFERENCE, conference), (BASE_CALL, call)]
    json_pairs = [(old.hex().upper(), new.hex().upper()) for old, new in octets]
    for base, flag in ((BASE_REFERENCE, answer if turned else 0), (BASE_REFERENCE | answer, answer)):
        old, new = struct.pack(">H", base), struct.pack(">H", reference | flag)
        octets += [(b"\x08\x02" + old, b"\x08\x02" + new), (old + BASE_CONFERENCE, new + conference),
                   (BASE_CONFERENCE + old, conference + new)]
        json_pairs.append((f'"callReferenceValue":{base}', f'"callReferenceValue":{reference | flag}'))
    return Change(octets, json_pairs)


def sequence_number(old, new, head):
    """requestSeqNum, which follows the head of the message and counts from 1."""
    return Change([(head + struct.pack(">H", old - 1), head + struct.pack(">H", new - 1))],
                  [(f'"requestSeqNum":{old}', f'"requestSeqNum":{new}')])


def reframed(message):
    """The packet with the lengths of its User-user element, which comes last, and of its TPKT header set."""
    at = 4 + 2 + message[5] + 1  # past the call reference and the message type
    while message[at] != 0x7E:
        at += 1 if message[at] & 0x80 else 2 + message[at + 1]
    user = message[at + 3:]
    whole = message[4:at + 1] + struct.pack(">H", len(user)) + user
    return struct.pack(">BBH", 3, 0, 4 + len(whole)) + whole


def patched(family, base, *changes):
    octets = exchange([pair for change in changes for pair in change.octets], base)
    return Message(family, reframed(octets) if family == "q931" else octets, base, changes)


def packets(data):
    """(frame number, octets from the IP header) of a capture in little-endian order."""
    at, frame = 24, 0
    while at < len(data):
        (length,) = struct.unpack_from("<I", data, at + 8)
        frame += 1
        yield frame, data[at + 16 + 14:at + 16 + length]
        at += 16 + length


def payloads(data):
    """What each frame of samples/call.pcap carries."""
    for frame, packet in packets(data):
        yield frame, packet[28:] if packet[9] == 17 else packet[40:]


with open(os.path.join(HERE, "call.pcap"), "rb") as call:
    FRAMES = dict(payloads(call.read()))
GRQ, GCF, RRQ, RCF, ARQ, ACF = (FRAMES[n] for n in range(1, 7))
SETUP, CALL_PROCEEDING, ALERTING, CONNECT = (FRAMES[n] for n in range(10, 14))
CAPABILITIES, DETERMINATION, CAPABILITIES_ACK, DECIDED_SLAVE, DECIDED_MASTER = (FRAMES[n] for n in (18, 20, 24, 26, 28))
OPEN_CHANNEL, FACILITY, END_SESSION = (FRAMES[n] for n in (32, 41, 47))
RELEASE_COMPLETE, DRQ, DCF = (FRAMES[n] for n in (48, 49, 50))


def carried(family, path, **members):
    """The message of tests/data that holds the members and, besides them, one number: (octets, that number)."""
    with open(os.path.join(TOP, "tests", "data", family + ".jsonl"), encoding="utf-8") as lines:
        for line in map(json.loads, lines):
            inner = line["expected"]
            for name in path.split("/") if line["alt"] == path else ():
                inner = inner[name]
            rest = {name: value for name, value in inner.items() if members.get(name) != value}
            if line["alt"] == path and len(inner) == len(members) + 1 and len(rest) == 1:
                return bytes.fromhex(line["hex"]), *rest.values()
    raise LookupError(path)


# Changes that are more than an exchange of values of equal length.

def release(cause, reason="undefinedReason"):
    """The Q.850 cause and the reason of a Release Complete."""
    tag = 3  # the alternative's index stands before three more bits
    return Change([(b"\x08\x02\x80\x90", bytes((8, 2, 0x80, 0x80 | cause))),
                   (b"\x00\x04\x58", bytes((0, 4, RELEASE_REASONS[reason] << tag)))],
                  [('"causeValue":144', f'"causeValue":{0x80 | cause}'), ('"undefinedReason"', f'"{reason}"')])


def without_fast_start(message):
    """A Setup or Connect whose addition fastStart is absent: its bit in the bitmap, and its open type of 59 octets."""
    for bitmap, cleared in ((b"\xcd\x1d\x90\x00", b"\xcd\x0d\x90\x00"), (b"\x1d\x1d\x00\x11", b"\x1d\x0d\x00\x11")):
        message = message.replace(bitmap, cleared)
    start = message.index(b"\x3b\x02\x1a\x00")
    return reframed(message[:start] + message[start + 60:])


def fast_start_refused(connect):
    """A Connect without fastStart that holds fastConnectRefused, a NULL, as its last addition."""
    message = without_fast_start(connect).replace(b"\x1d\x0d\x00\x11", b"\x1d\x0d\x20\x11")
    return reframed(message.replace(b"\x10\x80\x01\x00", b"\x01\x00\x10\x80\x01\x00"))


TUNNELLING = Change([(b"\x10\x80\x01\x00", b"\x10\x80\x01\x80")], [('"h245Tunnelling":false', '"h245Tunnelling":true')])


def tunnelled(*messages):
    """What the Facility tunnels, instead of its own two messages."""
    own = bytes.fromhex("0d02066d4003313223044c006420")
    elements = bytes((len(messages),)) + b"".join(bytes((len(m),)) + m for m in messages)
    return Change([(own, bytes((len(elements),)) + elements)],
                  [('["6D4003313223","4C006420"]', json.dumps([m.hex().upper() for m in messages]))])


def malformed(setup):
    """The Setup whose first element of fastStart claims 122 octets where it has 26."""
    return setup.replace(b"\x3b\x02\x1a\x00", b"\x3b\x02\x7a\x00")


def capabilities(sequence, *codecs):
    """A TerminalCapabilitySet of one alternative set; each codec receives up to 20 frames."""
    head = b"\x02\x30" + bytes((sequence,)) + b"\x06\x00\x08\x81\x75\x00\x07"
    table = b"".join(b"\x80" + struct.pack(">HHB", n, 4 << 11 | AUDIO[codec] << 6, 20 - 1)
                     for n, codec in enumerate(codecs))
    alternatives = b"".join(struct.pack(">H", n) for n in range(len(codecs)))
    few = bytes((len(codecs) - 1,))
    return head + few + table + b"\x00\x80\x00\x00" + few + alternatives


# Packets.

def checksum(octets):
    words = struct.unpack(f">{(len(octets) + 1) // 2}H", octets + bytes(len(octets) % 2))
    total = sum(words)
    while total > 0xFFFF:
        total = (total & 0xFFFF) + (total >> 16)
    return total ^ 0xFFFF


class Capture:
    def __init__(self):
        self.frames = []  # (microseconds, call, octets)
        self.call = 0

    def packet(self, time, protocol, source, destination, segment, place_of_checksum):
        addresses = network(source) + network(destination)
        pseudo = addresses + struct.pack(">HH", protocol, len(segment))
        segment = (segment[:place_of_checksum] + struct.pack(">H", checksum(pseudo + segment)) +
                   segment[place_of_checksum + 2:])
        head = struct.pack(">BBHHHBBH", 0x45, 0, 20 + len(segment), len(self.frames) + 1, 0x4000, 64, protocol, 0)
        head = head[:10] + struct.pack(">H", checksum(head + addresses)) + addresses
        ethernet = b"".join(b"\x02\x00" + network(address) for address in (destination, source)) + b"\x08\x00"
        self.frames.append((time, self.call, ethernet + head + segment))

    def udp(self, time, source, destination, payload):
        (host, port), (to_host, to_port) = source, destination
        self.packet(time, 17, host, to_host, struct.pack(">HHHH", port, to_port, 8 + len(payload), 0) + payload, 6)

    def octets(self):
        yield struct.pack("<IHHIIII", 0xA1B2C3D4, 2, 4, 0, 0, 65535, 1)
        for time, _, frame in self.in_order():
            yield struct.pack("<IIII", *divmod(time, 1_000_000), len(frame), len(frame)) + frame

    def in_order(self):
        return sorted(self.frames, key=lambda frame: frame[0])

    def frames_of(self, call):
        numbers = [n for n, (_, of, _) in enumerate(self.in_order(), 1) if of == call]
        return numbers[0], numbers[-1]


class Connection:
    """A TCP connection; each side's next sequence number."""

    def __init__(self, capture, client, server):
        self.capture, self.ends, self.next = capture, (client, server), [1000 * client[1], 5000 * client[1]]

    def segment(self, time, side, flags, payload=b"", captured=True):
        (host, port), (to_host, to_port) = self.ends[side], self.ends[1 - side]
        acknowledged = self.next[1 - side] if flags & ACK else 0
        head = struct.pack(">HHIIBBHHH", port, to_port, self.next[side], acknowledged, 0x50, flags, 65535, 0, 0)
        if captured:
            self.capture.packet(time, 6, host, to_host, head + payload, 16)
        self.next[side] += len(payload) + (1 if flags & (SYN | FIN_ACK & ~ACK) else 0)

    def open(self, time):
        for after, side, flags in ((0, 0, SYN), (900, 1, SYN_ACK), (1100, 0, ACK)):
            self.segment(time + after, side, flags)

    def refused(self, time):
        self.segment(time, 0, SYN)
        self.segment(time + 700, 1, RST_ACK)

    def close(self, time, side):
        for after, end, flags in ((0, side, FIN_ACK), (800, 1 - side, FIN_ACK), (1000, side, ACK)):
            self.segment(time + after, end, flags)


# The calls.

Party = collections.namedtuple("Party", "name number host media")
ALICE = Party("Alice Weber", "2001", "192.0.2.11", 5004)
BRUNO = Party("Bruno Klein", "2002", "192.0.2.12", 6004)
CARLA = Party("Carla Stein", "2003", "192.0.2.13", 7004)
DORIS = Party("Doris Adler", "2004", "198.51.100.4", 8004)

CALLING, CALLED = 0, 1


class Call:
    """One call, or one exchange of RAS messages: what it says, and the time up to which it has come."""

    def __init__(self, story, number, start, caller, called=None):
        self.story, self.capture, self.caller, self.called = story, story.capture, caller, called or caller
        self.time = start
        self.reference = 0x1000 + number
        self.conference, self.identifier = (bytes((kind, number)) * 8 for kind in (0xC0, 0xCA))
        self.connection = self.h245 = None
        self.client = (self.caller.host, 50000 + 2 * number)

    def wait(self, milliseconds):
        self.time += milliseconds * 1000
        return self.time

    def changes(self, turned=False):
        caller, called = self.caller, self.called
        hosts = (BASE_CALLER, caller.host), (BASE_CALLED, called.host)
        return [
            number("4001", caller.number), number("4002", called.number), text(BASE_NAME, caller.name),
            text(BASE_ENDPOINT, caller.number + "_ep"),
            identifiers(self.reference, self.conference, self.identifier, turned),
            host(*hosts[0]), host(*hosts[1]), port(hosts[0], 50001, self.client[1]),
            *(port(hosts[0], 5004 + n, caller.media + n) for n in range(4)),
            *(port(hosts[1], 6004 + n, called.media + n) for n in range(4))]

    # RAS

    def ras(self, base, sequence, *changes, head=2, own=None, answer=False):
        """A message whose requestSeqNum, `own`, follows `head` octets."""
        message = patched("ras", base, *self.changes(), sequence_number(own, sequence, base[:head]), *changes)
        endpoint, gatekeeper = (self.caller.host, RAS), (GATEKEEPER, RAS)
        ends = (gatekeeper, endpoint) if answer else (endpoint, gatekeeper)
        self.story.add(message)
        self.capture.udp(self.time, *ends, message.octets)

    def discover(self):
        sequence = self.story.sequence()
        self.ras(GRQ, sequence, own=1)
        self.wait(9)
        self.ras(GCF, sequence, own=1, answer=True)

    def register(self, *changes):
        sequence = self.story.sequence()
        self.ras(RRQ, sequence, *changes, own=2)
        self.wait(14)
        return sequence

    def registered(self, sequence):
        self.ras(RCF, sequence, own=2, answer=True)

    def registration_rejected(self, sequence, reason):
        octets, own = carried("ras", "registrationReject", protocolIdentifier="0.0.8.2250.0.4",
                              rejectReason={reason: None})
        self.ras(octets, sequence, own=own, answer=True)

    def ask_admission(self):
        sequence = self.story.sequence()
        self.ras(ARQ, sequence, own=3)
        self.wait(11)
        return sequence

    def admit(self):
        self.ras(ACF, self.ask_admission(), own=3, answer=True)
        self.wait(8)

    def admission_rejected(self, reason):
        sequence = self.ask_admission()
        octets, own = carried("ras", "admissionReject", rejectReason={reason: None})
        self.ras(octets, sequence, head=1, own=own, answer=True)

    def ask_disengage(self):
        sequence = self.story.sequence()
        self.ras(DRQ, sequence, head=1, own=4)
        return sequence

    def disengage(self):
        sequence = self.ask_disengage()
        self.wait(10)
        self.ras(DCF, sequence, head=1, own=4, answer=True)

    # Call signalling

    def dial(self):
        self.connection = Connection(self.capture, self.client, (self.called.host, CALL_SIGNALLING))
        self.connection.open(self.time)
        self.wait(2)

    def signal(self, side, base, *changes, pieces=1, captured=True, turned=False):
        message = patched("q931", base, *self.changes(turned), *changes)
        self.story.add(message, captured)
        self.send(self.connection, side, message.octets, pieces, captured)
        self.wait(40)

    def send(self, connection, side, octets, pieces=1, captured=True):
        size = -(-len(octets) // pieces)
        for start in range(0, len(octets), size):
            connection.segment(self.time, side, DATA, octets[start:start + size], captured)
            self.wait(1)

    def ring(self, setup=SETUP, *changes):
        self.dial()
        self.signal(CALLING, setup, *changes)
        self.signal(CALLED, CALL_PROCEEDING, *changes)
        self.signal(CALLED, ALERTING, *changes)

    def hang_up(self, side, cause, reason="undefinedReason", **how):
        self.signal(side, RELEASE_COMPLETE, release(cause, reason), turned=side == CALLED, **how)
        self.connection.close(self.time, side)
        self.wait(20)

    # H.245, on a connection of its own

    def control(self, side, octets, *changes):
        message = patched("h245", octets, *self.changes(), *changes)
        self.story.add(message)
        self.send(self.h245, side, struct.pack(">BBH", 3, 0, 4 + len(octets)) + message.octets)
        self.wait(25)

    def negotiate(self, called_capabilities=CAPABILITIES):
        self.h245 = Connection(self.capture, (self.caller.host, self.client[1] + 1), (self.called.host, H245))
        self.h245.open(self.time)
        self.wait(2)
        for side, message in ((CALLING, CAPABILITIES), (CALLING, DETERMINATION), (CALLED, called_capabilities),
                              (CALLED, CAPABILITIES_ACK), (CALLED, DECIDED_SLAVE), (CALLING, DECIDED_MASTER),
                              (CALLING, CAPABILITIES_ACK)):
            self.control(side, message)

    def end_session(self, side):
        self.control(side, END_SESSION)
        self.control(1 - side, END_SESSION)
        self.h245.close(self.time, side)

    # RTP

    def talk(self, packets, *sides):
        """G.711 in packets of 20 ms, to the ports of the fast start."""
        ends = (self.caller.host, self.caller.media), (self.called.host, self.called.media)
        for n in range(packets):
            for side in sides:
                head = struct.pack(">BBHII", 0x80, 0, n, 160 * n, self.reference << 8 | side)
                self.capture.udp(self.time + side, ends[side], ends[1 - side], head + b"\xff" * 160)
            self.wait(20)


class Story:
    """The capture with its calls, one after the other."""

    def __init__(self):
        self.capture = Capture()
        self.messages = []  # those that the capture holds
        self.calls = []     # (title, explanation)
        self.last_sequence = 100

    def sequence(self):
        self.last_sequence += 1
        return self.last_sequence

    def add(self, message, captured=True):
        if captured:
            self.messages.append(message)

    def call(self, title, explanation, clock, caller, called=None):
        self.calls.append((title, explanation))
        self.capture.call = len(self.calls)
        hour, minute, second = clock
        at = DAY + datetime.timedelta(hours=hour, minutes=minute, seconds=second)
        return Call(self, len(self.calls), int(at.timestamp()) * 1_000_000, caller, called)


def tell():
    """All calls, in the order of time."""
    story = Story()

    call = story.call("registration", "Alice's telephone finds its gatekeeper and registers", (9, 0, 0), ALICE)
    call.discover()
    call.wait(30)
    call.registered(call.register())

    call = story.call("good call", "2001 calls 2002, RTP flows both ways, both sides end properly", (9, 1, 0),
                      ALICE, BRUNO)
    call.admit()
    call.ring()
    call.wait(3200)
    call.signal(CALLED, CONNECT)
    call.negotiate()
    call.talk(100, CALLING, CALLED)
    call.end_session(CALLING)
    call.hang_up(CALLING, 16)
    call.disengage()

    call = story.call("one-way audio", "2001 calls 2002; RTP goes to 2002 only, none comes back", (9, 3, 0), ALICE, BRUNO)
    call.admit()
    call.ring()
    call.wait(2400)
    call.signal(CALLED, CONNECT)
    call.negotiate()
    call.talk(100, CALLING)
    call.end_session(CALLING)
    call.hang_up(CALLING, 16)
    call.disengage()

    call = story.call("registration rejected", "Carla's telephone asks for a number that it may not have: "
                      "`invalidAlias`", (9, 5, 0), CARLA)
    call.registration_rejected(call.register(), "invalidAlias")

    call = story.call("version 6", "a telephone of H.225.0 version 6 asks to register; the gatekeeper refuses it: "
                      "`invalidRevision`", (9, 6, 0), DORIS)
    version6 = Change([(b"\x06\x00\x08\x91\x4a\x00\x04", b"\x06\x00\x08\x91\x4a\x00\x06")],
                      [("0.0.8.2250.0.4", "0.0.8.2250.0.6")])
    call.registration_rejected(call.register(version6), "invalidRevision")

    call = story.call("admission rejected", "2001 calls 2003, which is not registered: `calledPartyNotRegistered`",
                      (9, 7, 0), ALICE, CARLA)
    call.admission_rejected("calledPartyNotRegistered")

    call = story.call("busy", "2002 answers the Setup by Release Complete: `inConf`, Q.850 cause 17", (9, 8, 0),
                      ALICE, BRUNO)
    call.admit()
    call.dial()
    call.signal(CALLING, SETUP, pieces=2)
    call.signal(CALLED, CALL_PROCEEDING)
    call.hang_up(CALLED, 17, "inConf")
    call.disengage()

    call = story.call("no answer", "2002 rings; 2001 gives up after 31 seconds", (9, 9, 0), ALICE, BRUNO)
    call.admit()
    call.ring()
    call.wait(31000)
    call.hang_up(CALLING, 16)
    call.disengage()

    call = story.call("connection refused", "the host of 2002 answers the TCP connection by RST", (9, 11, 0), ALICE, BRUNO)
    call.admit()
    Connection(call.capture, call.client, (BRUNO.host, CALL_SIGNALLING)).refused(call.time)
    call.wait(15)
    call.disengage()

    call = story.call("malformed Setup", "the first element of the Setup's fastStart claims 122 octets where it has 26; "
                      "2002 releases with cause 100 and without the call's identifier", (9, 12, 0), ALICE, BRUNO)
    call.admit()
    call.dial()
    call.signal(CALLING, malformed(SETUP))
    call.identifier = NO_CALL_IDENTIFIER
    call.hang_up(CALLED, 100)
    call.identifier = bytes((0xCA, len(story.calls))) * 8
    call.disengage()

    call = story.call("channel rejected", "H.245 agrees, but 2002 rejects the channel for G.729 Annex A: "
                      "`dataTypeNotSupported`", (9, 13, 0), ALICE, BRUNO)
    call.admit()
    call.ring(without_fast_start(SETUP))
    call.wait(1800)
    call.signal(CALLED, without_fast_start(CONNECT))
    call.negotiate()
    call.control(CALLING, OPEN_CHANNEL)
    octets, own = carried("h245", "response/openLogicalChannelReject", cause={"dataTypeNotSupported": None})
    call.control(CALLED, octets, Change([(struct.pack(">H", own - 1), struct.pack(">H", 101 - 1))],
                                        [(f'"forwardLogicalChannelNumber":{own}', '"forwardLogicalChannelNumber":101')]))
    call.end_session(CALLING)
    call.hang_up(CALLING, 65)
    call.disengage()

    call = story.call("no common codec", "2001 receives G.711 and G.723.1, 2002 G.729 only: no channel is asked for, "
                      "and 2001 releases with cause 88", (9, 14, 0), ALICE, BRUNO)
    call.admit()
    call.ring(without_fast_start(SETUP))
    call.wait(2100)
    call.signal(CALLED, without_fast_start(CONNECT))
    call.negotiate(capabilities(1, "g729", "g729AnnexA"))
    call.end_session(CALLING)
    call.hang_up(CALLING, 88)
    call.disengage()

    call = story.call("fast start refused", "2002 refuses the fast start and announces an H.245 address; 2001 does not "
                      "connect to it and releases with cause 79", (9, 15, 0), ALICE, BRUNO)
    call.admit()
    call.ring()
    call.wait(1500)
    call.signal(CALLED, fast_start_refused(CONNECT))
    call.wait(2000)
    call.hang_up(CALLING, 79)
    call.disengage()

    call = story.call("tunnelled H.245", "2001 tunnels its capabilities in a Facility, 2002 rejects them: "
                      "`undefinedTableEntryUsed`, and releases with cause 111", (9, 16, 0), ALICE, BRUNO)
    call.admit()
    call.ring(without_fast_start(SETUP), TUNNELLING)
    own_capabilities = capabilities(1, "g711Ulaw64k", "g711Alaw64k")
    call.signal(CALLING, FACILITY, tunnelled(own_capabilities, DETERMINATION))
    reject, own = carried("h245", "response/terminalCapabilitySetReject", cause={"undefinedTableEntryUsed": None})
    call.signal(CALLED, FACILITY, tunnelled(reject[:2] + b"\x01" + reject[3:]), turned=True)
    call.hang_up(CALLED, 111)
    call.disengage()

    call = story.call("gap", "the capture lacks the segment that held 2002's Connect", (9, 17, 0), ALICE, BRUNO)
    call.admit()
    call.ring()
    call.wait(1700)
    call.signal(CALLED, CONNECT, captured=False)
    call.talk(50, CALLING, CALLED)
    call.hang_up(CALLED, 16)
    call.disengage()

    call = story.call("unanswered disengage", "2001 ends its call with 2002; the gatekeeper answers none of three "
                      "disengage requests", (9, 18, 0), ALICE, BRUNO)
    call.admit()
    call.ring()
    call.wait(1900)
    call.signal(CALLED, CONNECT)
    call.talk(50, CALLING, CALLED)
    call.hang_up(CALLING, 16)
    sequence = story.sequence()
    for _ in range(3):
        call.ras(DRQ, sequence, head=1, own=4)
        call.wait(3000)
    return story


def table(story):
    """The lines of samples/README.md on the calls."""
    yield "| Frames | Call | What happens |\n| --- | --- | --- |\n"
    for n, (title, explanation) in enumerate(story.calls, 1):
        first, last = story.capture.frames_of(n)
        yield f"| {first} to {last} | {title} | {explanation} |\n"


def with_table(readme, story):
    begin, end = "<!-- calls -->\n", "<!-- end of calls -->\n"
    before, rest = readme.split(begin)
    return before + begin + "".join(table(story)) + end + rest.split(end)[1]


def main():
    story = tell()
    with open(CAPTURE, "wb") as capture:
        capture.writelines(story.capture.octets())
    with open(README, encoding="utf-8") as old:
        readme = old.read()
    with open(README, "w", encoding="utf-8") as new:
        new.write(with_table(readme, story))


if __name__ == "__main__":
    main()
