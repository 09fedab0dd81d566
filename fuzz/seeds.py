#!/usr/bin/env python3
"""Seeds for the fuzzers: seeds.py DATA CAPTURE OUT

DATA holds ras.jsonl, q931.jsonl and h245.jsonl, one message per line with its octets under `hex`; CAPTURE is a
pcap file of Ethernet frames with IPv4. Writes one file per message into OUT/ras, OUT/q931 and OUT/h245.
"""
import hashlib
import json
import pathlib
import struct
import sys

FAMILIES = ("ras", "q931", "h245")
RAS_PORTS = (1718, 1719)
TPKT_HEADER = 4
Q931_DISCRIMINATOR = 0x08


def vectors(directory):
    for path in sorted(directory.glob("*.jsonl")):
        for line in path.open():
            message = json.loads(line)
            if message.get("family") in FAMILIES:
                yield message["family"], bytes.fromhex(message["hex"])


def frames(capture):
    octets = capture.read_bytes()
    order = "<" if octets[:4] in (b"\xd4\xc3\xb2\xa1", b"\x4d\x3c\xb2\xa1") else ">"
    at = 24
    while at + 16 <= len(octets):
        size = struct.unpack_from(order + "I", octets, at + 8)[0]
        yield octets[at + 16:at + 16 + size]
        at += 16 + size


def packets(stream):
    while len(stream) > TPKT_HEADER:
        size = struct.unpack_from(">H", stream, 2)[0]
        yield stream[:size]
        stream = stream[max(size, TPKT_HEADER):]


def captured(capture):
    streams = {}
    for frame in frames(capture):
        ip = frame[14:]
        if len(ip) < 20 or ip[0] >> 4 != 4:
            continue
        transport = ip[(ip[0] & 15) * 4:struct.unpack_from(">H", ip, 2)[0]]
        ports = struct.unpack_from(">HH", transport)
        if ip[9] == 17 and set(ports) & set(RAS_PORTS):
            yield "ras", transport[8:]
        elif ip[9] == 6:
            key = ip[12:20] + transport[:4]
            streams[key] = streams.get(key, b"") + transport[(transport[12] >> 4) * 4:]
    for stream in streams.values():
        for packet in packets(stream):
            if packet[TPKT_HEADER:TPKT_HEADER + 1] == bytes([Q931_DISCRIMINATOR]):
                yield "q931", packet
            else:
                yield "h245", packet[TPKT_HEADER:]


def main():
    data, capture, out = map(pathlib.Path, sys.argv[1:])
    for family in FAMILIES:
        (out / family).mkdir(parents=True, exist_ok=True)
    for family, octets in [*vectors(data), *captured(capture)]:
        if family == "ras":
            octets += b"\0"  # the spare octet, without which a message is refused
        (out / family / hashlib.sha1(octets).hexdigest()[:16]).write_bytes(octets)


main()
