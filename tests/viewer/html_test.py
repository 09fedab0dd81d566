#!/usr/bin/env python3
"""Tests of the page of calls in a headless Chromium; on linux-x64 only, where this is installed.

Usage: html_test.py KELVRA_DUMP [EMULATOR...]
"""
import os
import platform
import sys
import tempfile
import unittest

from chromium import browser
from viewer_test import EMULATED, TOP, run

FAILED = os.path.join(TOP, "samples", "failed-calls.pcap")
FITS = platform.machine() == "x86_64" and sys.platform == "linux" and not EMULATED
with open(sys.argv[1], "rb") as program:
    IS_64_BIT = program.read(5)[4:] == b"\2"  # of the ELF header


def capture_with_alias(markup):
    """The failed calls, with one alias of each replaced by another of the same length."""
    with open(FAILED, "rb") as capture:
        data = capture.read()
    alias, markup = "Alice Weber".encode("utf-16-be"), markup.encode("utf-16-be")
    assert len(alias) == len(markup) and alias in data
    return data.replace(alias, markup)


@unittest.skipUnless(FITS and IS_64_BIT, "linux-x64 only")
class Page(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.browser = browser.Browser()
        cls.addClassCleanup(cls.browser.close)

    def show(self, data):
        with tempfile.NamedTemporaryFile(suffix=".html", delete=False) as page:
            page.write(run("--format", "html", "-", data=data).stdout)
        self.addCleanup(os.unlink, page.name)
        self.browser.open(page.name)

    def setUp(self):
        with open(FAILED, "rb") as capture:
            self.show(capture.read())

    def tearDown(self):
        self.assertEqual(self.browser.errors(), [])

    def numbers(self):
        return [text for text in self.browser.texts("tbody:not([hidden]) .open") if text != "RAS"]

    def test_sorts_by_number_and_by_text(self):
        by_number = [str(number) for number in range(1, 14)]
        self.browser.click("th:nth-child(1) button")
        self.assertEqual(self.numbers(), by_number)
        self.browser.click("th:nth-child(1) button")
        self.assertEqual(self.numbers(), by_number[::-1])
        self.browser.click("th:nth-child(5) button")
        self.browser.click("th:nth-child(5) button")
        self.assertEqual(self.numbers()[:3], ["1", "2", "9"])  # the longest setup times
        self.assertEqual(len(self.browser.find("th[aria-sort]")), 1)

    def test_filters(self):
        self.assertEqual(self.browser.texts("#count"), ["17 of 17"])
        self.browser.write("#filter", "USER BUSY")
        self.assertEqual(self.numbers(), ["4"])
        self.browser.run("document.querySelector('#filter').value = ''")
        self.browser.click("#faulty")
        self.assertEqual(self.numbers(), ["2", "3", "6", "7", "8", "11", "13"])
        self.assertEqual(self.browser.texts("#count"), ["9 of 17"])
        self.browser.click("#outside")
        self.assertEqual(self.browser.texts("#count"), ["7 of 17"])

    def test_message_unfolds_from_its_row_and_arrow(self):
        call = "tbody[data-identifier^='ca0a']"
        self.assertEqual(self.browser.texts(f"{call} svg"), [""])
        self.browser.click(f"{call} td:nth-child(3)")
        self.assertEqual(len(self.browser.find(f"{call} details[open]")), 0)
        self.browser.click(f"{call} svg a.fault")
        (tree,) = self.browser.texts(f"{call} details[open] pre")
        self.assertIn("frame 410", tree)
        self.assertIn("destCallSignalAddress", tree)
        self.assertRegex(tree, r"03 00 0[0-9A-F] [0-9A-F]{2}")  # the octets start at the TPKT header
        self.assertRegex(self.browser.texts(f"{call} details[open] summary")[0], "Setup .*! octet")
        self.browser.click(f"{call} .open")
        self.assertEqual(self.browser.texts(f"{call} svg"), [""])

    def test_keyboard_opens_a_call(self):
        self.browser.write("tbody[data-identifier^='ca07'] .open", "\ue007")  # Enter
        self.assertEqual(len(self.browser.find("[aria-expanded=true]")), 1)
        shown = self.browser.texts("tbody[data-identifier^='ca07'] svg text")
        self.assertEqual(shown[:3], ["192.0.2.11", "192.0.2.1", "192.0.2.12"])
        self.assertIn("Release Complete (releaseComplete)", shown)

    def test_text_of_the_capture_is_escaped(self):
        for alias, shown in (("<b>x'\"&</b>",) * 2, ("\x1b<<b&lt;&gt", "\\u001b<<b&lt;&gt")):
            self.show(capture_with_alias(alias))
            self.browser.run(
                "document.querySelectorAll('tr, details').forEach((e) => { e.hidden = false; e.open = true; })")
            self.assertEqual(self.browser.find("b"), [])
            self.assertIn(shown, self.browser.texts(".row td:nth-child(3)")[1])
            self.assertGreater(self.browser.run("return document.body.textContent").count(shown), 20)

    def test_page_loads_nothing_from_the_network(self):
        self.assertEqual(self.browser.run("return performance.getEntriesByType('resource').length"), 0)
        self.assertNotIn("http:", self.browser.run("return document.head.innerHTML"))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
