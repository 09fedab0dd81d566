#!/usr/bin/env python3
"""Tests the viewer's documentation: its guide, its manual page and its completion.

Usage: guide_test.py KELVRA_DUMP [EMULATOR...]
"""
import os
import shutil
import subprocess
import sys
import unittest

from viewer_test import EMULATED, TOP, run


def printed_by(*command, data=b""):
    return subprocess.run(command, input=data, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, timeout=60,
                          check=False)


@unittest.skipIf(EMULATED, "the guide runs the viewer from a shell")
class Guide(unittest.TestCase):
    def test_output_is_what_the_viewer_prints(self):
        result = printed_by(os.path.join(TOP, "scripts", "guide.py"), "check", sys.argv[1])
        self.assertEqual((result.returncode, result.stdout.decode()), (0, ""))


class Manual(unittest.TestCase):
    def setUp(self):
        help_text = run("--help").stdout.decode()
        self.options = {name for line in help_text.splitlines() if line.startswith("  -")
                        for name in line.split()[0].split(",")}
        self.page = run("--manual-page").stdout.replace(b"\r", b"").decode()
        self.completion = run("--bash-completion").stdout.replace(b"\r", b"")

    def test_page_and_completion_have_the_options_of_help(self):
        self.assertLess({"-h", "--help", "--version", "--as", "--format", "--ras-port"}, self.options)
        for option in self.options:
            self.assertIn("\\fB" + option.replace("-", "\\-") + "\\fR", self.page)
        self.assertEqual(set(self.complete("kelvra-dump", "-")), self.options)

    @unittest.skipUnless(shutil.which("man"), "has no man")
    def test_page_is_laid_out_without_a_warning(self):
        result = subprocess.run(["man", "--warnings", "-l", "-"], input=self.page.encode(), timeout=60, check=True,
                                stdout=subprocess.PIPE, stderr=subprocess.PIPE, env={**os.environ, "MANWIDTH": "80"})
        self.assertEqual(result.stderr, b"")
        text = b" ".join(result.stdout.split())
        for part in (b"--as ras|q931|h245", b"EXIT STATUS", b"spare zero octet", b"tcpdump -U -w - | kelvra-dump -"):
            self.assertIn(part, text)

    def complete(self, *words):
        """The completions that bash offers for the last word."""
        script = self.completion.decode() + ('COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1)); _kelvra_dump; '
                                             'printf "%s\\n" "${COMPREPLY[@]}"')
        result = printed_by("bash", "-c", script, "bash", *words)
        self.assertEqual(result.returncode, 0, result.stdout)
        return result.stdout.decode().split()

    def test_completion_offers_values_options_and_files(self):
        self.assertEqual(self.complete("kelvra-dump", "--as", ""), ["ras", "q931", "h245"])
        self.assertEqual(self.complete("kelvra-dump", "--format", "tr"), ["tree"])
        self.assertEqual(self.complete("kelvra-dump", "--ras-port", ""), [])
        here = os.path.join(TOP, "samples", "call.")
        self.assertEqual(self.complete("kelvra-dump", "--octets", here), [here + "pcap"])


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
