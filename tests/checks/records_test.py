#!/usr/bin/env python3
"""Tests that the files generated from the public headers are up to date: records_test.py SCRIPTS"""
import contextlib
import io
import sys
import unittest

sys.path.insert(0, sys.argv[1])

import records  # noqa: E402 (its folder is an argument)


class RecordsTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.made = records.made_files()

    def test_generated_files_match_the_headers(self):
        self.assertEqual(records.check(self.made), 0, "the differences are printed above")

    def test_a_file_that_does_not_match_is_refused(self):
        for path, (before, after) in {
            records.TABLE: ("| 0 | 1 |", "| 1 | 1 |"),
            records.MODEL: ('"offset64": 0', '"offset64": 1'),
            records.NAMES: ("kUrlID = 0x10000", "kUrlID = 0"),
            records.C_HEADER: ("_URL_ID = 0", "_URL_ID = 1"),
        }.items():
            with self.subTest(path=path.name):
                self.assertIn(before, self.made[path])
                changed = {**self.made, path: self.made[path].replace(before, after, 1)}
                with contextlib.redirect_stderr(io.StringIO()) as complaints:
                    self.assertEqual(records.check(changed), 1)
                self.assertEqual(complaints.getvalue().count("does not match the headers"), 1)
                self.assertIn(f"{path.relative_to(records.TOP)} does not match the headers", complaints.getvalue())


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
