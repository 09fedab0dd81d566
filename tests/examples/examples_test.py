#!/usr/bin/env python3
"""Tests the output of the programs in examples/: examples_test.py FOLDER LIBRARY [EMULATOR]

FOLDER holds the programs, LIBRARY is the shared library, EMULATOR starts a program.
"""
import pathlib
import re
import socket
import subprocess
import sys
import unittest

FOLDER, LIBRARY, *EMULATOR = sys.argv[1:]
SUFFIX = ".exe" if LIBRARY.endswith(".dll") else ""

# The registration and the Setup of samples/call.pcap.
REGISTRATION = ("0ec00001060008914a0004800100c000020a06b80100c000020a06b722c0b500002a094465736b2050686f6e6504342e322e"
                "31000201807334400a0041006c006900630065002000570065006200650072060047004b002d003160b500002a094465736b"
                "2050686f6e6504342e322e31288b00000340012b010001800180")
SETUP = ("030000f1080212670504038893a5280b416c6963652057656265726c058134303031700581343030327e00c50520b8060008914a00040201"
         "807334400a0041006c00690063006500200057006500620065007222c0b500002a094465736b2050686f6e6504342e322e31000101807335"
         "00c000021406b800101112131415161718191a1b1c1d1e1f00cd1d90000700c000020ac3511100202122232425262728292a2b2c2d2e2f3b"
         "021a0000000c6013801215000100c000020a138c00c000020a138d801e400001060401004c6013801215000100c000020a138c00c000020a"
         "138d800100010001000180010010800100")
CONFIRM = "040000b1060008914a000400819a7e8affff"


def command(name, *arguments):
    return [*EMULATOR, str(pathlib.Path(FOLDER, f"example_{name}{SUFFIX}")), *arguments]


class ExamplesTest(unittest.TestCase):
    def assert_prints(self, lines, name, *arguments, status=0):
        run = subprocess.run(command(name, *arguments), stdout=subprocess.PIPE, text=True, timeout=120)
        self.assertEqual(run.stdout.splitlines(), lines)
        self.assertEqual(run.returncode, status)

    def test_media_addresses(self):
        self.assert_prints([
            "session 1 forward media 192.0.2.10:5004",
            "session 1 forward control 192.0.2.10:5005",
            "session 1 reverse media 192.0.2.10:5004",
            "session 1 reverse control 192.0.2.10:5005"], "media_addresses", SETUP)
        self.assert_prints(["not decoded"], "media_addresses", SETUP[:200], status=1)

    def test_own_visitor(self):
        self.assert_prints([
            "registrationRequest.callSignalAddress[0]: 192.0.2.10:1720",
            "registrationRequest.rasAddress[0]: 192.0.2.10:1719",
            "registrationRequest.terminalAlias[0]: 4001",
            "registrationRequest.terminalAlias[1]: Alice Weber"], "own_visitor", REGISTRATION)
        self.assert_prints([], "own_visitor", REGISTRATION[:100], status=1)

    def test_load_at_run_time(self):
        self.assert_prints(["gatekeeperConfirm"], "load_at_run_time", LIBRARY, CONFIRM)
        self.assert_prints(["not decoded"], "load_at_run_time", LIBRARY, CONFIRM[:-2], status=1)
        self.assert_prints(["missing cannot be loaded"], "load_at_run_time", "missing", CONFIRM, status=1)

    def test_registrations(self):
        datagrams = [REGISTRATION, CONFIRM, REGISTRATION[:60], "", "7f" * 40]
        program = command("registrations", "0", str(len(datagrams)))
        with subprocess.Popen(program, stdout=subprocess.PIPE, text=True) as listener, \
                socket.socket(socket.AF_INET, socket.SOCK_DGRAM) as sender:
            self.addCleanup(listener.kill)
            port = int(re.fullmatch(r"listening on (\d+)\n", listener.stdout.readline()).group(1))
            lines = []
            for datagram in datagrams:
                sender.sendto(bytes.fromhex(datagram), ("127.0.0.1", port))
                lines.append(listener.stdout.readline().rstrip())
            self.assertEqual(listener.wait(60), 0)
        self.assertEqual(lines, [
            "registration 2 4001 Alice Weber at 192.0.2.10:1720", "ignored, gatekeeperConfirm", "refused, 30 octets",
            "refused, 0 octets", "refused, 40 octets"])

    def test_c(self):
        self.assert_prints(["gatekeeperConfirm 178 at 129.154.126.138:65535", "Release Complete, normal",
                            "masterSlaveDetermination, terminal type 50"], "decode")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
