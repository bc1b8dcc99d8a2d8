#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""The labels that tools/cuts gives fit the cuts it writes, and right.tsv says when an answer is
right."""

import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

HERE = Path(__file__).resolve().parent
TOOLS = HERE.parents[1] / "tools"
sys.path.insert(0, str(TOOLS))
sys.dont_write_bytecode = True
from labels import delimiter_of, is_right, read_labels  # noqa: E402

COLUMNS = "id corpus layout delimiter header_lines num_columns encoding also size doubt".split()
# Of each file the first value of the data: it stands at the line that the labels of cuts tell.
FIRST = {"towns": "Aarhus", "gauges": "7001", "letters": "QX1"}


def corpus_files():
    towns = "".join(f"Town {n},{n % 7}.5,{n * 31},{'' if n % 3 else 'north'}\n" for n in range(90))
    gauges = "".join(f"{7001 + n}   {n % 9}.25  {n * 13:6}\n" for n in range(90))
    letters = "".join(f"QX{1 + n},{'ab' * (n % 3 + 1)},{n}.75,{n * n}\n" for n in range(90))
    prose = "".join(f"Line {n} of a letter" + " and on" * (n % 5) + ".\n" for n in range(40))
    return {
        "towns": ("delimited", ",", 1, 4, "name,rate,count,area\nAarhus,1.5,2,far east\n" + towns),
        "gauges": ("space", "-", 2, 3, "Gauges\nid  rate  count\n" + gauges),
        "letters": ("delimited", ",", 1, 4, "key,word,share,count\n" + letters),
        "prose": ("line", "-", "?", "?", prose),
        "doubtful": ("delimited", ",", 0, 2, "a,b\nc,d\n" * 30),
    }


def write_corpus(folder):
    (folder / "files").mkdir(parents=True)
    lines = ["\t".join(COLUMNS)]
    for name, (layout, delimiter, header, columns, text) in corpus_files().items():
        (folder / "files" / name).write_text(text, encoding="ascii", newline="")
        doubt = "arguable: anything" if name == "doubtful" else "sure"
        lines.append("\t".join(map(str, (name, "own", layout, delimiter, header, columns, "ascii",
                                         "fixed" if layout == "space" else "-", len(text), doubt))))
    (folder / "manifest.tsv").write_text("\n".join(lines) + "\n", encoding="ascii")


def cuts_in(folder):
    """The label of each cut, and its lines."""
    labels = read_labels(folder / "manifest.tsv")
    return {name: (label, (folder / "files" / name).read_text(encoding="utf-8").split("\n"))
            for name, label in labels.items()}


class Cuts(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory()
        root = Path(cls.folder.name)
        write_corpus(root / "corpus")
        for out in ("one", "two"):
            subprocess.run([sys.executable, TOOLS / "cuts", root / "corpus", root / out],
                           check=True, capture_output=True)
        cls.cuts, cls.again = cuts_in(root / "one"), cuts_in(root / "two")

    @classmethod
    def tearDownClass(cls):
        cls.folder.cleanup()

    def test_same_cuts_each_time(self):
        self.assertEqual(self.cuts, self.again)

    def test_many_kinds_and_nothing_arguable(self):
        kinds = {label["variant"] for label, _ in self.cuts.values()}
        for kind in "head+3 mid20 comment_block ragged_tail aligned fixed box tabs".split():
            self.assertIn(kind, kinds)
        self.assertNotIn("doubtful", {label["of"] for label, _ in self.cuts.values()})

    def test_data_begin_where_the_label_says(self):
        for name, (label, lines) in self.cuts.items():
            if label["of"] in FIRST and label["variant"] != "mid20":
                with self.subTest(name):
                    self.assertIn(FIRST[label["of"]], lines[int(label["header_lines"])])
                    above = lines[:int(label["header_lines"])]
                    self.assertFalse(any(FIRST[label["of"]] in line for line in above))

    def test_delimited_lines_hold_the_delimiter(self):
        for name, (label, lines) in self.cuts.items():
            if label["layout"] == "delimited":
                with self.subTest(name):
                    delimiter = delimiter_of(label)
                    first = lines[int(label["header_lines"])]
                    self.assertGreaterEqual(first.count(delimiter), int(label["num_columns"]) - 1)


class Right(unittest.TestCase):
    def test_table(self):
        for line in (HERE / "right.tsv").read_text(encoding="ascii").splitlines()[1:]:
            layout, delimiter, also, answered, by, columns, decided, right = line.split("\t")
            answer = {"layout": answered, "delimiter": None if by == "-" else by,
                      "num_columns": int(columns), "decided": decided == "yes"}
            label = {"layout": layout, "delimiter": delimiter, "also": also}
            with self.subTest(line):
                self.assertEqual(is_right(label, answer), right == "yes")


if __name__ == "__main__":
    unittest.main()
