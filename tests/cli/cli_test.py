#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Drives the built program text-format: exact output, exit codes, messages, manners.

Usage: cli_test.py PROGRAM EXAMPLE_PROGRAM [--update] [TEST...]
PROGRAM is text-format, EXAMPLE_PROGRAM the built examples/pick_strategy.cpp. --update writes the
expected files anew, to be reviewed by eye. Exit code 2 when a program is missing.
"""

import json
import os
import pty
import re
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
EXPECTED = Path(__file__).resolve().parent / "expected"
DATA = ROOT / "examples" / "data"
PROGRAM = EXAMPLE = None
UPDATE = False

DETECT_KEYS = (
    "schema path decided reason layout delimiters column_widths header_lines num_variables "
    "column_types line_ending encoding encoding_reason compression records_sampled given "
    "violation warnings"
).split()
EXPLAIN_KEYS = DETECT_KEYS + (
    "outcome line_reader not_tried sampled rules winner runners_up margin without_winner"
).split()
SAMPLED_KEYS = (
    "layout delimiters column_widths records typical_fields num_variables mean_deviation "
    "data_variation typed_columns numeric_columns datetime_columns date_columns "
    "delimiter_columns prior_rank header_lines column_types fate rejected_by candidate"
).split()


def run(*arguments, stdin=b"", env=None, cwd=ROOT):
    """The finished program: returncode, stdout and stderr as bytes."""
    environment = {k: v for k, v in os.environ.items() if k not in ("NO_COLOR", "TERM")}
    environment.update(env or {})
    return subprocess.run(
        [PROGRAM, *arguments], input=stdin, capture_output=True, env=environment, cwd=cwd,
        timeout=60, check=False)


class Case(unittest.TestCase):
    maxDiff = None

    def answer(self, *arguments, stdin=b"", code=None):
        """The one JSON object that comes out."""
        done = run(*arguments, "--json", stdin=stdin)
        if code is not None:
            self.assertEqual((done.returncode, done.stderr), (code, b""))
        return json.loads(done.stdout)

    def assert_expected(self, name, text):
        path = EXPECTED / name
        if UPDATE:
            path.write_bytes(text)
        self.assertEqual(text.decode(), path.read_bytes().decode() if path.exists() else "")


class Examples(Case):
    """The answers about examples/data, reviewed by eye."""

    UNDECIDED = {"holidays.txt"}

    def files(self):
        names = sorted(path.name for path in DATA.iterdir())
        self.assertGreaterEqual(len(names), 10)
        return names

    def test_detect(self):
        for name in self.files():
            with self.subTest(name):
                done = run("detect", f"examples/data/{name}")
                self.assertEqual(done.stderr, b"")
                self.assertEqual(done.returncode, 1 if name in self.UNDECIDED else 0)
                self.assert_expected(f"detect-{name}.txt", done.stdout)

    def test_json(self):
        done = run("--json", *[f"examples/data/{name}" for name in self.files()])
        self.assertEqual((done.returncode, done.stderr), (1, b""))
        self.assert_expected("detect.jsonl", done.stdout)

    def test_explain(self):
        for name in ["orders.csv", "stations.txt", "holidays.txt", "empty.txt", "server.log"]:
            with self.subTest(name):
                done = run("explain", f"examples/data/{name}")
                self.assert_expected(f"explain-{name}.txt", done.stdout)

    def test_every_layout_is_there(self):
        layouts = {self.answer(f"examples/data/{name}")["layout"] for name in self.files()}
        self.assertEqual(layouts, {"delimited", "space-aligned", "fixed-width", "lines"})

    def test_expected_files_have_examples(self):
        for path in EXPECTED.iterdir():
            name = re.sub(r"^(detect|explain)-(.*)\.txt$", r"\2", path.name)
            self.assertTrue(name in self.files() or name == "detect.jsonl", path.name)


TABLE = "a;b,1\nc;d,2\ne;f,3\n"
ALIGNED = "ab  10\nc   20\nde   5\n"
DAYS = "2024-01-05\n2024-01-06\n"
DECIMALS = "x;1,5\ny;2,25\nz;3,0\n"

# Options, the text, and members of the answer.
GIVEN = [
    ("--delimiter ;", TABLE, dict(delimiters=[";"], reason="given", given=["delimiter"])),
    ("--delimiter ,", TABLE, dict(delimiters=[","], num_variables=2)),
    ("-d , -d ;", TABLE, dict(delimiters=[",", ";"], num_variables=3)),
    (r"-d \x3b", TABLE, dict(delimiters=[";"])),
    ("-d ;,", TABLE, dict(delimiters=[";,"], num_variables=1, column_types=["undecided"])),
    ("--layout lines", TABLE, dict(layout="lines", num_variables=1, delimiters=[])),
    ("--layout space-aligned", TABLE, dict(layout="space-aligned", num_variables=1)),
    ("--widths 2,1,2", TABLE, dict(layout="fixed-width", column_widths=[2, 1, 2])),
    ("--layout fixed-width", ALIGNED, dict(layout="fixed-width", column_widths=[2, 4])),
    ("--layout fixed-width", DAYS, dict(column_widths=[10], decided=False)),
    ("--layout delimited", "a  1\nbb 2\n", dict(delimiters=[","], decided=False)),
    ("--layout delimited", "a b  1;\nbb 2;\nc 3 4;\n", dict(delimiters=[";"], decided=True)),
    ("--header-lines 2", TABLE, dict(header_lines=2, given=["header_lines"])),
    ("--header-lines 1 --layout auto", "a\nb\n", dict(layout="lines", header_lines=1)),
    ("--columns 2", TABLE, dict(num_variables=2, decided=True)),
    ("--columns 5", TABLE, dict(num_variables=2, decided=False, reason="columns_differ")),
    ("", DAYS, dict(decided=False, reason="date_columns")),
    ("--records 1", TABLE, dict(records_sampled=1)),
    ("--records all", "a,b\n" * 400, dict(records_sampled=400)),
    ("", "a,b\n" * 400, dict(records_sampled=250)),
    ("--comment #", "#x\n#y;;\na,1\nb,2\n#\nc,3\n", dict(delimiters=[","], num_variables=2)),
    ("--comment /* --comment */ -d ,", "/* a\nb */\na,1\nb,2\n", dict(num_variables=2)),
    ("--quote '", "'a,b',1\n'c,d',2\n'e,f',3\n", dict(num_variables=2)),
    ("--quote none -d ,", '"a,b",1\n"c,d",2\n', dict(num_variables=3)),
    ("--line-ending | -d ,", "a,1|b,2|c\n,3|", dict(records_sampled=3, num_variables=2)),
    ("--consecutive join -d ,", "a,,1\nb,2\nc,,,3\n", dict(num_variables=2)),
    ("--leading ignore -d ,", ",a,1\n,b,2\n", dict(num_variables=2)),
    ("--trailing ignore -d ,", "a,1,\nb,2,\n", dict(num_variables=2)),
    ("-d ;", DECIMALS, dict(column_types=["text", "text"])),
    ("--decimal-mark ,", DECIMALS, dict(delimiters=[";"], column_types=["text", "number"])),
    ("--decimal-mark , -d ;", "x;1\ny;1.5\nz;2.5\n", dict(column_types=["text", "text"])),
    ("--decimal-mark , --thousands-mark .", "a;1\nx;1.250,5\ny;12.000,0\n",
     dict(column_types=["text", "number"])),
    ("--decimal-mark none", "1.2\n3.4\n5.6\n", dict(delimiters=["."])),
    ("", "1.2\n3.4\n5.6\n", dict(layout="lines", column_types=["number"])),
    ("--missing NA", "x,1\ny,2\nz,NA\n", dict(column_types=["text", "number"])),
    ("", "x,1\ny,2\nz,NA\n", dict(column_types=["text", "text"])),
    ("--date-format dd.MM.yy -d ;", "1;x\n05.01.24;y\n", dict(column_types=["date", "text"])),
    ("--exponent x -d ;", "0;1\n1x5;1\n", dict(column_types=["number", "number"])),
    ("--decimal-digits 2 -d ;", "0;1\n1.234;1\n", dict(column_types=["text", "number"])),
    ("--leading-character $ -d ;", "0;1\n$5;1\n", dict(column_types=["number", "number"])),
    ("--embedded-numbers -d ;", "0;1\nabout 5;1\n", dict(column_types=["number", "number"])),
    ("--keep-blanks -d ;", "0;1\n5 ;1\n", dict(column_types=["text", "number"])),
    ("--encoding UTF-16LE", "a\0,\0001\0\n\0b\0,\0002\0\n\0", dict(encoding="UTF-16LE")),
    ("--sample-size 8", "a,1\nb,2\nc,3\n", dict(records_sampled=2)),
    ("", "x" * 20, dict(line_ending=None, warnings=[])),
    ("", "a,1\r\nb,2\n", dict(line_ending="mixed")),
    ("", "a,1\rb,2\rc,3\r", dict(line_ending="CR", num_variables=2)),
    ("", "", dict(layout="lines", num_variables=0, column_types=[], records_sampled=0)),
]

# Options and the one line that they lead to.
USAGE = [
    ("--delimeter ;", "unknown option --delimeter (did you mean --delimiter?)"),
    ("-x", "unknown option -x"),
    ("--records", "--records needs a value"),
    ("--json=yes", "--json takes no value"),
    ("--records 3 -n 4", "--records is given 2 times, as 3 and 4: give it once"),
    ("--records 0", '--records "0": expected a whole number, at least 1, or "all"'),
    ("--records -1", '--records "-1": expected a whole number, at least 1, or "all"'),
    ("--header-lines x", '--header-lines "x": expected a whole number, at least 0, or "auto"'),
    ("--columns 99999999999999999999",
     '--columns "99999999999999999999": expected a whole number, at least 1'),
    ("--sample-size 2G", '--sample-size "2G": expected a size from 1 to 64M, such as 4096, 64K or '
                         "1M"),
    ("--sample-size 65M", '--sample-size "65M": expected a size from 1 to 64M, such as 4096, 64K '
                          "or 1M"),
    ("--layout csv", '--layout "csv": expected one of auto, delimited, space-aligned, fixed-width, '
                     "lines"),
    ("--widths 3,,4", '--widths "3,,4": expected widths of at least 1, apart by commas, such as '
                      "8,12,6"),
    ("--widths 3,0", '--widths "3,0": expected widths of at least 1, apart by commas, such as '
                     "8,12,6"),
    ("--delimiter=", '--delimiter "": expected a text in UTF-8 that is not empty'),
    (r"--delimiter \q", '--delimiter "\\q": expected only \\t, \\n, \\r, \\0, \\\\, \\xHH and '
                        "\\uHHHH behind a \\"),
    (r"-d \uffff", '--delimiter "\\uffff": expected a text without U+FFFF'),
    ("--decimal-mark ..", '--decimal-mark "..": expected one character (below U+10000)'),
    ("--date-format yyyy-QQ", '--date-format "yyyy-QQ": expected a pattern of yyyy yy MM M MMM '
                              "MMMM dd d E EEEE HH H hh h mm m ss s S a X, other letters in single "
                              "quotes"),
    ("--consecutive never", '--consecutive "never": expected one of split, join, error'),
    ("--width 5", '--width "5": expected a whole number from 40 to 10000'),
    ("--color blue", '--color "blue": expected one of auto, always, never'),
    ("--delimiter , --widths 3", "--delimiter contradicts --widths: give one of them"),
    ("-d , -l lines", "--delimiter contradicts --layout lines: only delimited text has delimiters"),
    ("-w 3 -l delimited", "--widths contradicts --layout delimited: only fixed-width text has "
                          "widths"),
    ("-l lines --header-lines 1",
     "--header-lines 1 contradicts --layout lines: every line is a value"),
    ("-l lines -c 2", "--columns 2 contradicts --layout lines: a line is one value"),
    ("-w 3,4 -c 3", "--columns 3 contradicts --widths 3,4: these are 2 widths"),
    ("-w 3 --leading keep", "--leading keep contradicts --widths: this layout has no delimiters"),
    ("-d , --partial-field wrap",
     "--partial-field wrap contradicts --delimiter: this layout has no column widths"),
    ("-l space-aligned --consecutive split", "--consecutive split contradicts --layout "
                                             "space-aligned: a run of blanks counts as one"),
    ("-l space-aligned --trailing keep", "--trailing keep contradicts --layout space-aligned: "
                                         "blanks around a line make no fields"),
    ("--thousands-mark .", "--thousands-mark . contradicts the decimal mark (a full stop by "
                           "default): give another --decimal-mark"),
    ('-d "', "--delimiter contradicts the quote character (a quotation mark by default): give "
             "--quote none or another one"),
    ("-d , --decimal-mark ,",
     "--delimiter contradicts --decimal-mark ,: one character cannot mean both"),
    (r"-d \n", "--delimiter contradicts the line endings (LF, CRLF and CR by default): give "
               "another --line-ending"),
    ("--comment a --comment b --comment c", "--comment is given 3 times: once for comments that "
                                            "end with the line, twice for the marks around a "
                                            "comment"),
    ("--files0-from - x", "--files0-from contradicts x: name the files in one place"),
    ("generate", "generate: name one of man, bash, zsh, fish, json"),
    ("generate perl", 'generate "perl": expected one of man, bash, zsh, fish, json'),
    ("generate man --json", "generate has no option --json"),
]

# Options, the text, and the message behind "standard input:".
VIOLATIONS = [
    ("-d , --consecutive error", "a,1\nb,2\nc,,3\n", "3: a delimiter directly follows another one, "
     "which --consecutive error forbids; allow it with split or join"),
    ("-d , --leading error", "a,1\n\n,2\n", "3: the record begins with a delimiter, which "
     "--leading error forbids; allow it with keep or ignore"),
    ("-d , --trailing error --comment #", "a,1\n#\r\n# x\nb,\n", "4: the record ends with a "
     "delimiter, which --trailing error forbids; allow it with keep or ignore"),
    ("-d , --empty-lines error", "a,1\n\nb,2\n", "2: the line is empty, which --empty-lines error "
     "forbids; allow it with skip or read"),
    ("-w 2,2 --partial-field error", "aabb\naab\n", "2: the line ends inside a column, which "
     "--partial-field error forbids; allow it with keep or another rule"),
]


class Options(Case):
    def test_given_parts(self):
        for options, text, members in GIVEN:
            with self.subTest(options=options, text=text[:40]):
                got = self.answer(*options.split(), stdin=text.encode())
                self.assertEqual({key: got[key] for key in members}, members)

    def test_wrong_usage(self):
        for options, message in USAGE:
            with self.subTest(options):
                done = run(*options.split(), stdin=b"a,b\n")
                line = f"text-format: {message}; see text-format --help\n"
                self.assertEqual((done.returncode, done.stdout, done.stderr.decode()),
                                 (2, b"", line))

    def test_broken_rules(self):
        for options, text, message in VIOLATIONS:
            with self.subTest(options):
                done = run(*options.split(), "--json", stdin=text.encode())
                self.assertEqual((done.returncode, done.stderr.decode()),
                                 (2, f"standard input:{message}\n"))
                line, _, words = message.partition(": ")
                self.assertEqual(json.loads(done.stdout)["violation"],
                                 {"line": int(line), "message": words})

    def test_rules_that_hold(self):
        rules = ["--consecutive", "--leading", "--trailing", "--empty-lines"]
        arguments = [word for rule in rules for word in (rule, "error")]
        self.assertIsNone(self.answer("-d", ",", *arguments, stdin=b"a,1\nb,2\n", code=0)
                          ["violation"])

    def test_given_is_shown(self):
        done = run("-d", ";", "--header-lines", "1", "--missing", "x", stdin=TABLE.encode())
        text = done.stdout.decode()
        for line in ["  layout        delimited (given)", "  delimiter     semicolon (given)",
                     "  header lines  1 (given)", "  given         --missing"]:
            self.assertIn(line + "\n", text)


# Options, the text, and the rows as they are shown: cells are aligned by the width of characters,
# long values cut, quotes taken off, what would disturb a terminal escaped.
SHOWN = [
    ("-d ,", "日本,1\ne\u0301clair,22\n\U0001f600,333\n",
     ["text    number",
      "------  ------",
      "日本         1",
      "e\u0301clair      22",
      "\U0001f600         333"]),
    ("-d ,", '"a ""b""", 1 \n x ,"2\n3"\n"y,\n', [
        "text   text",
        "-----  ----",
        'a "b"  1',
        r"x      2\n3",
        r'"y,\n']),
    ("-d ; --width 40", "a;" + "b" * 60 + ";c\nd;e;f\n", [
        "text  text                text",
        "----  ------------------  ----",
        "a     bbbbbbbbbbbbbbb...  c",
        "d     e                   f"]),
    ("-d , --width 40", ",".join(f"column{n}" for n in range(12)), [
        "undecided  undecided  undecided",
        "---------  ---------  ---------",
        "column0    column1    column2",
        "(columns 1 to 3 of 12)"]),
    ("-w 2,3,50", "ab日\nx\ty", [
        "|2--|3--|50--------------------------------------|",
        "|ab |日 |                                        |",
        r"|x\t|y  |                                        |"]),
    ("-w 2,18446744073709551615", "abc\n", [
        "|2-|18446744073709551615--------------------|",
        "|ab|c                                       |"]),
    ("-l lines", "a\\b\t\x7f\n\u200b\u202e\ud7ff\n", [
        "text",
        "------------------",
        r"a\b\t\x7f",
        r"\u200b\u202e\ud7ff"]),
    ("-d , --header-lines 13 --rows 1", "".join(f"{n},\n" for n in range(14)), [
        "undecided  undecided",
        "---------  ---------",
        "13"]),
]


class Manners(Case):
    def test_rows_as_they_are_shown(self):
        for options, text, rows in SHOWN:
            with self.subTest(options=options, text=text[:30]):
                shown = run(*options.split(), stdin=text.encode()).stdout.decode()
                self.assertEqual(shown.split("\n\n", 1)[1].splitlines(),
                                 ["    " + row for row in rows])

    def test_long_headers_are_cut(self):
        shown = run("-d", ",", "--header-lines", "14", stdin=b"".join(
            b"%d," % n + b"x" * 90 + b"\n" for n in range(20))).stdout.decode()
        self.assertIn("\n      1| 0," + "x" * 66 + "...\n", shown)
        self.assertIn("\n     12| 11," + "x" * 65 + "...\n       | (and 2 more)\n", shown)

    def test_bad_files_do_not_stop_the_rest(self):
        done = run("--json", "examples/data/clubs.tsv", "missing", "examples", "-",
                   "examples/data/orders.csv", stdin=b"x,1\ny,2\n")
        got = [json.loads(line) for line in done.stdout.splitlines()]
        self.assertEqual(done.returncode, 2)
        self.assertEqual([g["path"] for g in got], ["examples/data/clubs.tsv", "missing",
                                                    "examples", "-", "examples/data/orders.csv"])
        self.assertEqual([g.get("error") for g in got],
                         [None, "file_not_found", "is_directory", None, None])
        messages = done.stderr.decode().splitlines()
        self.assertEqual([m.split(": ")[0] for m in messages], ["missing", "examples"])

    def test_highest_exit_code(self):
        undecided, decided = "examples/data/holidays.txt", "examples/data/orders.csv"
        self.assertEqual(run(undecided, decided).returncode, 1)
        self.assertEqual(run("missing", undecided).returncode, 2)

    def test_standard_input_is_the_default(self):
        text = (DATA / "orders.csv").read_bytes()
        self.assertEqual(run(stdin=text).stdout, run("detect", "-", stdin=text).stdout)

    def test_a_file_called_like_a_command(self):
        with tempfile.TemporaryDirectory() as folder:
            (Path(folder) / "explain").write_text("a,1\nb,2\n")
            done = run("detect", "explain", cwd=folder)
            self.assertEqual(done.returncode, 0)
            self.assertTrue(done.stdout.startswith(b"explain\n  layout "), done.stdout)

    def test_strange_names(self):
        with tempfile.TemporaryDirectory() as folder:
            for name in [b"caf\xe9\n\x1b[31m.csv", b"[a,b].csv", b"--json", b"++", b"-"]:
                with self.subTest(name):
                    path = os.path.join(os.fsencode(folder), name)
                    Path(os.fsdecode(path)).write_text("a,1\nb,2\n")
                    done = run("--", path)
                    shown = name.replace(b"\xe9", b"\\xe9").replace(b"\n", b"\\n")
                    shown = shown.replace(b"\x1b", b"\\x1b")
                    first_line = done.stdout.split(b"\n")[0]
                    self.assertEqual((done.returncode, first_line.endswith(b"/" + shown)),
                                     (0, True), done)
                    got = json.loads(run("--json", "--", path).stdout)
                    self.assertEqual(bytes.fromhex(got.get("path_bytes", path.hex())), path)
            done = run(os.path.join(os.fsencode(folder), b"no\xff\x07"))
            self.assertIn(b"no\\xff\\x07: ", done.stderr)

    def test_control_characters_are_escaped(self):
        evil = "\x1b]0;owned\x07\u202e|1\r\n" * 3 + "\x9b31m|2\r\n"
        for command in ["detect", "explain"]:
            done = run(command, "-d", "|", stdin=evil.encode())
            self.assertIsNone(re.search(rb"[\x00-\x09\x0b-\x1f\x7f]|\xc2[\x80-\x9f]|\xe2\x80\xae",
                                        done.stdout), done.stdout)

    def test_lines_keep_to_the_width(self):
        # Forty readings that are all regular, with long values, wide characters and many columns.
        marks = [chr(c) for c in range(1, 128) if not chr(c).isalnum() and chr(c) not in
                 "\n\r\x1a\"$'()+-@[]{}."]
        line = "".join(f"{n + 10}{mark}" for n, mark in enumerate(marks)) + "9\n"
        texts = [line * 20, "日本語テキスト," * 40 + "\n日本," * 40, "x" * 500 + "\ny\n"]
        for text in texts:
            for command in ["detect", "explain"]:
                done = run(command, "-e", "UTF-8", stdin=text.encode())
                for shown in done.stdout.decode().splitlines():
                    self.assertLessEqual(sum(2 if c >= "\u3000" else 1 for c in shown), 80, shown)

    def test_closed_pipe(self):
        files = ["examples/data/orders.csv"] * 400  # more than a pipe holds
        with subprocess.Popen([PROGRAM, *files], cwd=ROOT, stdout=subprocess.PIPE,
                              stderr=subprocess.PIPE) as process:
            process.stdout.readline()
            process.stdout.close()
            self.assertEqual((process.stderr.read(), process.wait()), (b"", 0))

    def test_full_disk(self):
        with open("/dev/full", "wb") as full:
            done = subprocess.run([PROGRAM, "examples/data/orders.csv"], cwd=ROOT, stdout=full,
                                  stderr=subprocess.PIPE, check=False)
        self.assertEqual((done.returncode, done.stderr.decode()),
                         (2, "standard output: cannot be written: No space left on device\n"))

    def test_list_of_files(self):
        names = b"examples/data/orders.csv\0examples/data/empty.txt"
        expected = run("examples/data/orders.csv", "examples/data/empty.txt").stdout
        for ending in [b"", b"\0"]:
            done = run("--files0-from", "-", stdin=names + ending)
            self.assertEqual((done.returncode, done.stdout), (0, expected))
        with tempfile.NamedTemporaryFile() as file:
            file.write(names)
            file.flush()
            self.assertEqual(run("--files0-from", file.name).stdout, expected)
        for names, message in [(b"-\0", b"standard input is the list"), (b"\0", b"name is empty")]:
            done = run("--files0-from", "-", stdin=names)
            self.assertEqual((done.returncode, message in done.stderr), (2, True), done.stderr)
        done = run("--files0-from", "missing")
        self.assertEqual((done.returncode, done.stderr[:9]), (2, b"missing: "))

    def on_terminal(self, *arguments, env=None):
        """What the program writes to a terminal, and its exit code; its input is one as well."""
        master, slave = pty.openpty()
        environment = {k: v for k, v in os.environ.items() if k not in ("NO_COLOR", "TERM")}
        environment.update(env or {})
        with subprocess.Popen([PROGRAM, *arguments], cwd=ROOT, stdin=slave, stdout=slave,
                              stderr=slave, env=environment) as process:
            os.close(slave)
            text = b""
            try:
                while block := os.read(master, 65536):
                    text += block
            except OSError:  # the other end is closed
                pass
            os.close(master)
            return text, process.wait()

    def test_colour_only_on_a_terminal(self):
        file = "examples/data/orders.csv"
        plain = run(file).stdout
        self.assertNotIn(b"\x1b", plain)
        self.assertIn(b"\x1b[1m", self.on_terminal(file)[0])
        for arguments, env in [((), {"NO_COLOR": "1"}), ((), {"TERM": "dumb"}),
                               (("--color", "never"), {})]:
            with self.subTest(arguments=arguments, env=env):
                self.assertNotIn(b"\x1b", self.on_terminal(file, *arguments, env=env)[0])
        self.assertIn(b"\x1b[1m", self.on_terminal(file, env={"NO_COLOR": ""})[0])
        self.assertIn(b"\x1b[1m", run(file, "--color", "always").stdout)

    def test_no_file_and_a_terminal(self):
        for arguments in [(), ("explain",), ("--json",)]:
            text, code = self.on_terminal(*arguments)
            self.assertEqual((code, b"Usage: text-format" in text), (2, True), text)


class Story(Case):
    """explain as data: what it tells has to fit together."""

    TEXTS = [DATA / name for name in ["orders.csv", "pegel.csv", "energy.csv", "clubs.tsv"]]

    @staticmethod
    def best(rule, numbers, options):
        """The numbers that a rule may keep."""
        if rule == "dates":
            return [n for n in numbers if n > 0] or numbers
        if rule == "numvariables":
            return [n for n in numbers if n == options] or numbers
        if rule in ("class_value", "non_empty"):
            return [max(numbers)]
        return numbers if rule in ("variation", "header_lines") else [min(numbers)]

    def check_rules(self, story, expected_columns=None):
        for rule in story["rules"]:
            numbers = [float("inf") if n is None else n for n in rule["measures"]]
            kept = {n for n, c in zip(numbers, rule["seen"]) if c in rule["survivors"]}
            allowed = self.best(rule["rule"], numbers, expected_columns)
            self.assertLessEqual(kept, set(allowed), rule)
            if rule["rule"] == "variation":
                self.assertIn(min(numbers), kept)
            fallen = set(rule["seen"]) - set(rule["survivors"])
            if rule["rule"] in ("dates", "class_value", "non_empty"):
                for number, candidate in zip(numbers, rule["seen"]):
                    self.assertTrue(candidate not in fallen or number not in allowed, rule)

    def test_numbers_agree_with_who_fell(self):
        stories = [self.answer("explain", str(path)) for path in self.TEXTS]
        texts = ["a,1;2|3\nb,4;5|6\nc,7;8|9\n", "1 2,x;y\n3 4,z;w\n5 6,u;v\n",
                 "a,b\t1\nc,d\t2\n", "x:1=2\ny:3=4\n", "x;1:2:3,4\ny;5:6:7,8\n"]
        stories += [self.answer("explain", stdin=text.encode()) for text in texts]
        seen = set()
        for story in stories:
            self.check_rules(story)
            seen.update(rule["rule"] for rule in story["rules"])
        self.check_rules(self.answer("explain", "--columns", "3", stdin=texts[0].encode()), 3)
        self.assertLessEqual({"dates", "variation", "class_value", "header_lines", "non_empty",
                              "priors_rank"}, seen)

    def test_candidates_winner_and_runner_up(self):
        story = self.answer("explain", str(DATA / "pegel.csv"))
        accepted = [s for s in story["sampled"] if s["candidate"] is not None]
        self.assertEqual([s["candidate"] for s in accepted], list(range(len(accepted))))
        self.assertEqual(accepted[story["winner"]]["delimiters"], story["delimiters"])
        self.assertNotIn(story["winner"], story["runners_up"])
        self.assertEqual(story["margin"], 1)
        self.assertEqual(story["without_winner"]["delimiters"], [","])

    def test_characters_that_were_not_tried(self):
        lines = ["title: x"] + [f'é(1.5),"{n}",a' for n in range(20)] + ["sum~"]
        story = self.answer("explain", stdin="\n".join(lines).encode())
        self.assertEqual({c["character"]: c["why"] for c in story["not_tried"]},
                         {" ": "outside_the_middle_lines", '"': "never_a_delimiter",
                          "(": "never_a_delimiter", ")": "never_a_delimiter",
                          ".": "decimal_mark", ":": "outside_the_middle_lines",
                          "~": "outside_the_middle_lines", "é": "not_ascii"})

    def test_rejections_are_told(self):
        text = "a,1\n" * 5 + "".join(f"{'; ' * (n % 7)}b,2\n" for n in range(30)) + "c,3\n" * 5
        story = self.answer("explain", stdin=text.encode())
        fates = {s["delimiters"][0]: (s["fate"], s["rejected_by"]) for s in story["sampled"]
                 if s["layout"] == "delimited"}
        self.assertEqual(fates[","], ("accepted", None))
        self.assertEqual(fates[";"], ("rejected", "irregular"))

    def test_given_reading(self):
        story = self.answer("explain", "-d", ",", stdin=TABLE.encode())
        self.assertEqual((story["outcome"], story["sampled"], story["rules"], story["winner"]),
                         ("given", [], [], None))
        self.assertIn(b"The reading that was given", run("explain", "-d", ",",
                                                         stdin=TABLE.encode()).stdout)

    def test_members_are_frozen(self):
        story = self.answer("explain", str(DATA / "orders.csv"))
        self.assertEqual(list(story), EXPLAIN_KEYS)
        self.assertEqual(list(story["sampled"][0]), SAMPLED_KEYS)
        self.assertEqual(list(story["rules"][0]), ["rule", "seen", "measures", "survivors"])
        self.assertEqual(list(story["line_reader"]), SAMPLED_KEYS[:-3])
        self.assertEqual(list(self.answer(str(DATA / "orders.csv"))), DETECT_KEYS)
        self.assertEqual(list(self.answer("missing")),
                         ["schema", "path", "decided", "error", "message"])
        self.assertEqual(story["schema"], 1)


class Documents(Case):
    """What is written about the program is what it does."""

    def table(self):
        return json.loads(run("generate", "json").stdout)["options"]

    def test_help_and_man_page_know_every_option(self):
        text = run("--help").stdout.decode()
        man = run("generate", "man").stdout.decode()
        man = re.sub(r"\\f.", "", man).replace("\\-", "-").replace("\\e", "\\")
        words = " ".join(text.split())
        for option in self.table():
            with self.subTest(option["name"]):
                value = option["value"] or "|".join(option["choices"])
                names = ", ".join(filter(None, [option["letter"], option["name"]]))
                heading = f"{names} {value}".strip()
                self.assertRegex(text, rf"(?m)^ +{re.escape(heading)}($|  )")
                self.assertIn(f"\n.TP\n{heading}\n{option['help']}\n", man)
                self.assertIn(option["help"], words)
        known = {option["name"] for option in self.table()}
        self.assertEqual(set(re.findall(r"--[a-z0-9][a-z0-9-]*", text)), known)
        self.assertTrue(all(len(line) <= 80 for line in text.splitlines()))

    def test_help_is_help_everywhere(self):
        expected = run("--help").stdout
        for arguments in [("-h",), ("explain", "--help"), ("--help", "missing")]:
            done = run(*arguments)
            self.assertEqual((done.returncode, done.stdout), (0, expected))
        self.assertRegex(run("--version").stdout, rb"^text-format \d+\.\d+\.\d+\n$")

    def test_completions_know_every_option(self):
        texts = {shell: run("generate", shell).stdout.decode() for shell in ["bash", "zsh", "fish"]}
        for option in self.table():
            name = option["name"].removeprefix("--")
            self.assertRegex(texts["bash"], rf"--{name}[ '|)]")
            self.assertRegex(texts["zsh"], rf"'\*?--{name}=?\[")
            self.assertRegex(texts["fish"], rf" -l {name} ")

    def test_bash_completes(self):
        script = run("generate", "bash").stdout.decode() + """
try() { COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1)); _text_format; echo "${COMPREPLY[*]}"; }
try text-format --lay
try text-format --layout f
try text-format --layout = li
try text-format generate z
try text-format exp
try text-format detect examples/data/ord
"""
        done = subprocess.run(["bash", "-c", script], cwd=ROOT, capture_output=True, check=False)
        self.assertEqual((done.stdout.decode().splitlines(), done.stderr), (
            ["--layout", "fixed-width", "lines", "zsh", "explain", "examples/data/orders.csv"],
            b""))

    def blocks(self, document, language):
        text = (ROOT / document).read_text(encoding="utf-8")
        return re.findall(rf"^```{language}\n(.*?)^```$", text, re.DOTALL | re.MULTILINE)

    def test_documents_show_real_output(self):
        for document in ["README.md", "docs/command-line.md"]:
            blocks = self.blocks(document, "console")
            self.assertGreaterEqual(len(blocks), 3)
            for block in blocks:
                command, _, output = block.partition("\n")
                words = command.removeprefix("$ tools/run ").split()
                self.assertEqual(run(*words).stdout.decode(), output, f"{document}: {command}")

    def test_documents_name_real_options(self):
        known = {option["name"] for option in self.table()}
        foreign = {"--preset", "--build", "--install", "--prefix", "--cflags", "--libs"}
        for document in ["README.md", "docs/command-line.md"]:
            text = (ROOT / document).read_text(encoding="utf-8")
            self.assertLessEqual(set(re.findall(r"--[a-z0-9-]+\b", text)) - foreign, known)

    def test_documented_members(self):
        text = (ROOT / "docs" / "command-line.md").read_text(encoding="utf-8")
        for key in EXPLAIN_KEYS:
            self.assertIn(f"`{key}`", text)

    def test_readme_shows_the_example_program(self):
        source = (ROOT / "examples" / "pick_strategy.cpp").read_text(encoding="utf-8")
        licence, _, program = source.partition("\n")
        self.assertTrue(licence.startswith("// SPDX"))
        self.assertEqual(self.blocks("README.md", "cpp"), [program])
        done = subprocess.run([EXAMPLE], capture_output=True, check=True)
        text = (ROOT / "README.md").read_text(encoding="utf-8")
        self.assertIn(f"It prints `{done.stdout.decode().strip()}`", text)


def main(arguments):
    global PROGRAM, EXAMPLE, UPDATE
    UPDATE = "--update" in arguments
    arguments = [a for a in arguments if a != "--update"]
    if len(arguments) < 2 or not all(os.access(path, os.X_OK) for path in arguments[:2]):
        print(f"cli_test.py: no such program: {arguments[:2]}", file=sys.stderr)
        return 2
    PROGRAM, EXAMPLE = (os.path.abspath(path) for path in arguments[:2])
    missing = subprocess.run([sys.executable, __file__, PROGRAM + ".missing", EXAMPLE],
                             stderr=subprocess.DEVNULL, check=False)
    if missing.returncode != 2:
        print("cli_test.py: does not notice that the program is missing", file=sys.stderr)
        return 1
    result = unittest.main(argv=[__file__, *arguments[2:]], exit=False).result
    return 0 if result.wasSuccessful() and result.testsRun > 0 else 1


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
