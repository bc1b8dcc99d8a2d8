#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""No command asks the engine to decide more often than it has hypotheses.

Usage: picks_test.py PROGRAM COUNT_PICKS
PROGRAM is text-format, COUNT_PICKS the library that counts the decisions (count_picks.cpp). Exit
code 2 when one of them is missing.
"""

import json
import os
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
PROGRAM = COUNT_PICKS = None

COMMANDS = (["detect"], ["detect", "--json"], ["detect", "--oneline"], ["explain"],
            ["explain", "--json"])
GIVEN = (["--layout", "lines"], ["--layout", "space-aligned"], ["--layout", "fixed-width"],
         ["--delimiter", ","], ["--widths", "3,4"])


def asks_the_engine(hypothesis):
    """Lines with more in them than the engine knows are read without it."""
    syntax = ("outer_bars", "rulers", "escape", "comments_at_line_ends", "quotes_behind_blanks",
              "rest_of_line")
    return not any(hypothesis[member] for member in syntax)


class Picks(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.count_file = Path(folder.name) / "count"

    def run_program(self, *arguments):
        """How many decisions the command asked for, and what it printed."""
        self.count_file.unlink(missing_ok=True)
        environment = {**os.environ, "LD_PRELOAD": COUNT_PICKS,
                       "COUNT_PICKS_FILE": str(self.count_file)}
        done = subprocess.run([PROGRAM, *map(str, arguments)], capture_output=True,
                              env=environment, timeout=60, check=False)
        self.assertLess(done.returncode, 2, done.stderr)  # 1: not decided
        return int(self.count_file.read_text()), done.stdout

    def test_one_decision_for_each_hypothesis(self):
        paths = sorted([*(ROOT / "examples" / "data").iterdir(),
                        *(ROOT / "tests" / "samples").glob("*.txt")])
        most = 0
        for path in paths:
            _, story = self.run_program("explain", "--json", path)
            hypotheses = sum(map(asks_the_engine, json.loads(story)["explanation"]["hypotheses"]))
            most = max(most, hypotheses)
            for command in COMMANDS:
                with self.subTest(command=command, path=path.name):
                    self.assertEqual(self.run_program(*command, path)[0], hypotheses)
        self.assertGreater(most, 1, "no file has several hypotheses")

    def test_none_where_the_layout_is_given(self):
        path = ROOT / "examples" / "data" / "orders.csv"
        for given in GIVEN:
            for command in COMMANDS:
                with self.subTest(command=command, given=given):
                    self.assertEqual(self.run_program(*command, *given, path)[0], 0)

    def test_one_for_each_file(self):
        path = ROOT / "examples" / "data" / "orders.csv"
        self.assertEqual(self.run_program("detect", path, path)[0], 2)


if __name__ == "__main__":
    if len(sys.argv) < 3 or not all(os.path.isfile(path) for path in sys.argv[1:3]):
        print("usage: picks_test.py PROGRAM COUNT_PICKS", file=sys.stderr)
        sys.exit(2)
    PROGRAM, COUNT_PICKS = map(os.path.abspath, sys.argv[1:3])
    unittest.main(argv=[sys.argv[0], *sys.argv[3:]])
