"""Makes a capture of calls that samples/ does not show; calls_test.py compares what the viewer finds in it."""
import json
import os
import struct
import sys

from viewer_test import TOP, vectors

sys.path.insert(0, os.path.join(TOP, "samples"))
import failed_calls as base  # noqa: E402
from failed_calls import (ALICE, BRUNO, CALLED, CALLING, CALL_SIGNALLING, CARLA, GATEKEEPER, H245,  # noqa: E402
                          Connection)

UNKNOWN_H245 = 30246
SETUP, CONNECT = (base.without_fast_start(message) for message in (base.SETUP, base.CONNECT))

# RAS messages of tests/data: their octets, their own requestSeqNum and the number of octets before it.
ADMISSION_REJECT = ("2c000030", 1, 1)
BANDWIDTH_REQUEST = ("3100fffe00004120ea7f5c5baa1f82305d5ed5dfb294d8441738b4b38dc6", 65535, 2)
DISENGAGE_REJECT = ("45fffe50f46c000000", 65535, 1)
BANDWIDTH_REJECT = ("3800003000", 1, 1)
BANDWIDTH_CONFIRM = ("36fffe0000098001000100", 65535, 1)
IN_PROGRESS = ("800c60fffe40ff003ad70000fffe", 65535, 3)
LOCATION_REQUEST = ("4800fffe0383031020788303000288830330029810c000020d071c0040", 65535, 2)
LOCATION_REJECT = bytes.fromhex("5002c540")
RESPONSE_TO_ANSWER = ("5a40000001824e2dfffdfffd1038c95b19000000400001800000f0966b114a3d94cf6e8e573e86e173eb01600ffb52"
                      "4203820001000e7808042b06017f0f9c44018001000100", 1, 2)
REPORT = ("5a40b9d90840070008914a00027f0265644080fffd4e2d64ff002e40055d7c1a8c0300{}0e2801000160", 47578, 2)
RESPONSE = ("5a00fffe018404164e2d00e900414e2d0042ffc52290c60240b14aa233e5fdf71b1989b239d1daf47c30caeaea17465418682"
            "71a45f2cd882ec400000f2a010001000340e3100100", 65535, 2)
OPEN_ENCRYPTED = "0300873ea0401204080f0002088416403fff1400032b06010008ffff1fff0843028002c451"  # of H.245
# The same of the sample call.
REGISTRATION, ADMISSION, ADMITTED = (base.RRQ.hex(), 2, 2), (base.ARQ.hex(), 3, 2), (base.ACF.hex(), 3, 2)
DISENGAGE = (base.DRQ.hex(), 4, 1)


def swap(old, new):
    return base.Change([(old, new)], [])


def ras(call, message, sequence, *changes, answer=False):
    octets, own, head = message
    call.ras(bytes.fromhex(octets), sequence, *changes, own=own, head=head, answer=answer)
    call.wait(5)


def signal(call, connection, side, message, *changes, turned=False):
    call.send(connection, side, base.patched("q931", message, *call.changes(turned), *changes).octets)
    call.wait(20)


def report(*calls):
    """An infoRequestResponse whose perCallInfo lists these calls."""
    octets, own, head = REPORT
    listed = (b"\x80" + struct.pack(">H", call.reference) + call.conference + bytes.fromhex("00000043c0001100") +
              call.identifier for call in calls)
    return octets.format(f"{len(calls):02x}" + b"".join(listed).hex()), own, head


def routed(call):
    """The gatekeeper routes the call, so it has two legs; Bruno asks for admission too."""
    call.admit()
    to_gatekeeper = Connection(call.capture, call.client, (GATEKEEPER, CALL_SIGNALLING))
    onward = Connection(call.capture, (GATEKEEPER, 40000), (BRUNO.host, CALL_SIGNALLING))
    for message, side in ((SETUP, CALLING), (base.ALERTING, CALLED), (CONNECT, CALLED),
                          (base.RELEASE_COMPLETE, CALLED)):
        for connection, reference in ((to_gatekeeper, 0x1001), (onward, 0x2001)):
            call.reference = reference
            signal(call, connection, side, message, turned=message == base.RELEASE_COMPLETE)
        if message == SETUP:
            call.caller = ALICE._replace(host=BRUNO.host)
            asked = struct.pack(">H", base.BASE_REFERENCE) + base.BASE_CONFERENCE + b"\x08"
            answering = struct.pack(">H", call.reference) + call.conference + b"\x48"  # answerCall
            ras(call, ADMISSION, 500, swap(asked, answering))
            ras(call, ADMITTED, 500, answer=True)
            call.caller = ALICE
    call.reference = 0x1001
    call.disengage()


def old(call):
    """Without call identifiers, the reference and the conference name the call; the next Setup begins another."""
    call.identifier = base.NO_CALL_IDENTIFIER
    call.admit()
    call.dial()
    for _ in range(2):
        signal(call, call.connection, CALLING, SETUP)
        signal(call, call.connection, CALLING, SETUP)
        signal(call, call.connection, CALLED, CONNECT)
        signal(call, call.connection, CALLING, base.RELEASE_COMPLETE)
    conference = bytes.fromhex("20ea7f5c5baa1f82305d5ed5dfb294d8")
    ras(call, BANDWIDTH_REQUEST, 600, swap(conference, call.conference))
    ras(call, BANDWIDTH_REJECT, 600, answer=True)
    nameless = bytes(16) + struct.pack(">H", call.reference)
    ras(call, BANDWIDTH_REQUEST, 601, swap(conference + b"\x44\x17", nameless), answer=True)  # of the gatekeeper
    call.disengage()


def answers(call):
    """An answer belongs to the latest request of its name and number. The rejected admission is asked for again."""
    ras(call, ADMISSION, 699)
    ras(call, ADMISSION_REJECT, 699, answer=True)
    ras(call, ADMISSION, 700)
    ras(call, IN_PROGRESS, 700, answer=True)
    ras(call, ADMITTED, 700, answer=True)
    ras(call, ADMISSION_REJECT, 700, answer=True)  # comes too late
    ras(call, BANDWIDTH_CONFIRM, 700, answer=True)  # answers something else
    ras(call, DISENGAGE, 700)
    ras(call, IN_PROGRESS, 700, answer=True)


def repeats(call):
    """Some messages want an answer. Up to a minute after a request, the same one is a repeated request."""
    ras(call, BANDWIDTH_REQUEST, 709)  # of an unknown call
    ras(call, LOCATION_REQUEST, 710)
    call.capture.udp(call.time, (GATEKEEPER, base.RAS), (CARLA.host, 1820), LOCATION_REJECT)  # to its replyAddress
    call.wait(5)
    for sequence, response in ((712, RESPONSE_TO_ANSWER), (713, RESPONSE)):
        ras(call, response, sequence)
    for milliseconds in (60_000, 60_001, 0):
        ras(call, REGISTRATION, 711)
        call.wait(milliseconds - 5)


def odd(call, other):
    """Connect comes twice, identifiers differ, H.245 is refused, RTP has two types, the disengage request is late."""
    call.admit()
    call.dial()
    signal(call, call.connection, CALLING, SETUP)
    signal(call, call.connection, CALLED, base.ALERTING, swap(base.BASE_CALL, other.identifier))
    for _ in range(2):
        signal(call, call.connection, CALLED, base.CONNECT)
    Connection(call.capture, (ALICE.host, 50900), (BRUNO.host, H245)).refused(call.time)
    call.wait(20)
    for payload_type, count in ((0, 1), (8, 2)):
        for n in range(count):
            rtp = struct.pack(">BBHII", 0x80, payload_type, n, 160 * n, 1) + bytes(160)
            call.capture.udp(call.wait(20), (ALICE.host, ALICE.media), (BRUNO.host, BRUNO.media), rtp)
    released = call.time
    call.hang_up(CALLING, 16)
    call.time = released + 300_000_000
    ras(call, DISENGAGE, 720)
    ras(call, DISENGAGE_REJECT, 720, answer=True)


def without_setup(call, earlier):
    """The capture lacks the Setup; the caller is at its gatekeeper's address, and reports an earlier call too."""
    call.admit()
    ras(call, report(earlier, call), 800)
    call.dial()
    call.signal(CALLING, SETUP, captured=False)
    signal(call, call.connection, CALLED, base.ALERTING)
    disconnect = base.RELEASE_COMPLETE[:8] + b"\x45" + base.RELEASE_COMPLETE[9:]
    for message in disconnect, base.RELEASE_COMPLETE:
        signal(call, call.connection, CALLED, message, base.release(17), turned=True)


def channels(call):
    """Both sides open channels under one number; one is opened again and closed twice. Connect has an earlier time."""
    call.dial()
    signal(call, call.connection, CALLING, SETUP)
    call.wait(-50)
    signal(call, call.connection, CALLED, CONNECT)
    call.h245 = Connection(call.capture, (CARLA.host, 50901), (BRUNO.host, H245))
    for _ in range(2):
        call.control(CALLED, base.CAPABILITIES)
    acknowledge = base.FRAMES[34]
    close = base.FRAMES[43]
    for side in (CALLING, CALLED, CALLING):
        call.control(side, base.OPEN_CHANNEL)
        call.control(1 - side, acknowledge)
    for message in close, close, bytes.fromhex(OPEN_ENCRYPTED), base.END_SESSION:
        call.control(CALLING, message)
    signal(call, call.connection, CALLED, base.RELEASE_COMPLETE, turned=True)


def connection_reused(call, earlier):
    """The connection of an earlier call for H.245 serves another; Connect names another conference."""
    call.time = earlier.time
    call.dial()
    signal(call, call.connection, CALLING, SETUP)
    signal(call, call.connection, CALLED, CONNECT, swap(base.BASE_CONFERENCE, b"\xEE" * 16))
    call.h245 = earlier.h245
    call.control(CALLED, base.END_SESSION)


def connected_elsewhere(call):
    """A Connect of tests/data, whose connectedAddress has no text."""
    connect = next(v["hex"] for v in vectors("q931") if '"connectedAddress": [{' in json.dumps(v))
    call.send(Connection(call.capture, call.client, (BRUNO.host, CALL_SIGNALLING)), CALLED, bytes.fromhex(connect))


def control_alone(call):
    """The capture lacks the call signalling."""
    call.h245 = Connection(call.capture, (CARLA.host, 50902), (BRUNO.host, UNKNOWN_H245))
    call.control(CALLING, base.END_SESSION)


def refused(call):
    """Nothing was said about the connection that a host refuses again and again."""
    for port in (50910, 50911):
        Connection(call.capture, (CARLA.host, port), (BRUNO.host, CALL_SIGNALLING)).refused(call.wait(1000))


def octets():
    """The octets of the capture."""
    story = base.Story()
    story.capture.in_order = lambda: story.capture.frames  # as the messages were made
    minutes = iter(range(0, 66, 6))

    def call(caller, called=None):
        return story.call("", "", (8, next(minutes), 0), caller, called)
    for part in routed, old:
        part(call(ALICE, BRUNO))
    unreleased = call(ALICE, BRUNO)
    answers(unreleased)
    odd(call(ALICE, BRUNO), unreleased)
    repeats(call(CARLA))
    without_setup(call(ALICE._replace(host=GATEKEEPER), BRUNO), unreleased)
    connected_elsewhere(call(CARLA, BRUNO))
    control_alone(call(CARLA, BRUNO))
    ended = call(CARLA, BRUNO)
    channels(ended)
    connection_reused(call(CARLA, BRUNO), ended)
    refused(call(CARLA, BRUNO))
    return b"".join(story.capture.octets())
