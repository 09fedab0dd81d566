#!/usr/bin/env python3
"""Tests that the JSON lines of kelvra-dump follow docs/kelvra-dump.schema.json.

Usage: schema_test.py KELVRA_DUMP [EMULATOR...]
"""
import copy
import json
import os
import sys
import unittest

import jsonschema

from viewer_test import GATEKEEPER_CONFIRM, TOP, objects, run, vectors

with open(os.path.join(TOP, "docs", "kelvra-dump.schema.json"), encoding="utf-8") as file:
    SCHEMA = json.load(file)
VALIDATOR = jsonschema.Draft202012Validator(SCHEMA)
# Each message is cut at this many places, spread over its length.
CUTS = 5


def cut(text):
    octets = bytes.fromhex(text)
    return [octets[:len(octets) * n // CUTS].hex() for n in range(1, CUTS)]


class Lines(unittest.TestCase):
    def check(self, line):
        error = jsonschema.exceptions.best_match(VALIDATOR.iter_errors(line))
        self.assertIsNone(error, f"{line}: {error}")

    def test_schema_is_one(self):
        VALIDATOR.check_schema(SCHEMA)

    def test_whole_messages_and_those_cut_short(self):
        for family in ("ras", "q931", "h245"):
            texts = [v["hex"] for v in vectors(family)]
            texts += [piece for text in texts for piece in cut(text) if piece]
            lines = objects(run("--as", family, "--input", "hex", "--format", "json", data="\n".join(texts).encode()))
            self.assertEqual(len(lines), len(texts))
            self.assertEqual({line["complete"] for line in lines}, {True, False})
            for line in lines:
                self.check(line)

    def test_messages_of_a_capture(self):
        lines = objects(run("--format", "json", os.path.join(TOP, "samples", "failed-calls.pcap")))
        self.assertTrue(lines)
        for line in lines:
            self.check(line)

    def test_schema_refuses_what_the_viewer_must_not_print(self):
        (line,) = objects(run("--as", "ras", "--format", "json", data=GATEKEEPER_CONFIRM[:40].encode()))
        self.check(line)
        (whole,) = objects(run("--as", "ras", "--format", "json", data=GATEKEEPER_CONFIRM.encode()))
        for member in ("family", "name", "result", "ok", "octets", "complete", "message"):
            self.assertFalse(VALIDATOR.is_valid({name: whole[name] for name in whole if name != member}), member)
        self.assertFalse(VALIDATOR.is_valid({name: line[name] for name in line if name != "fault"}))
        for path, value in ((["ok"], 1), (["complete"], True), (["other"], 1), (["family"], "h323"),
                            (["fault", "octet"], -1), (["fault", "cause"], ""), (["fault", "member"], "a..b"),
                            (["fault", "other"], 1), (["faults"], [line["fault"]]), (["frame"], 1),
                            (["message", "second"], {}), (["message", "gatekeeperConfirm", "requestSeqNum"], 1.5)):
            wrong = copy.deepcopy(line)
            place = wrong
            for name in path[:-1]:
                place = place[name]
            place[path[-1]] = value
            self.assertFalse(VALIDATOR.is_valid(wrong), path)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
