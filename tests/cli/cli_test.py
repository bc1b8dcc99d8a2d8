#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Drives the built program text-format: what transcripts and documents show is what happens.

Usage: cli_test.py PROGRAM PICK_STRATEGY OPEN_AND_PRINT [--update] [TEST...]
PROGRAM is text-format, the others are built from examples/. --update writes the transcripts anew,
to be reviewed by eye. Exit code 2 when a program is missing.

A transcript is a list of commands for bash, each behind "$ " and followed by what it prints: lines
for standard output, lines behind "2> " for standard error, and the exit code in brackets if it is
not 0. The commands of a transcript share an empty folder, in which examples/ is the one of the
source tree. They may use
  text TEXT           prints the text, in which \\n, \\t, \\xHH and \\uHHHH are replaced
  members [NAME...]   see members.py
  rows                the rows that detect shows, without what stands around them
  terminal COMMAND    runs it on a terminal, where control characters show as ^[
  open_and_print FILE runs the example of that name
"""

import json
import os
import re
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

HERE = Path(__file__).resolve().parent
ROOT = HERE.parents[1]
PROGRAM = PICK_STRATEGY = OPEN_AND_PRINT = None
UPDATE = False

# A command with its further lines; its output; the comments and empty lines in front of the next.
BLOCK = re.compile(r"^\$ (.*(?:\n> .*)*)\n((?:(?!\$ |# ).*\n)*?)((?:\n|# .*\n)*)(?=\$ |\Z)", re.M)

COMMANDS = f"""
set -o pipefail
text() {{ printf %b "$1"; }}
members() {{ {sys.executable} -S {HERE}/members.py "$@"; }}
rows() {{ sed -n '/^$/,/^$/{{/./p}}'; }}
terminal() {{ script -qec "$1" /dev/null < /dev/null | tr -d '\\r' | cat -v; }}
"""


def run(command, folder):
    """What is seen when bash runs the command in the folder: its output, and what else it did."""
    environment = {k: v for k, v in os.environ.items() if k not in ("NO_COLOR", "TERM", "COLUMNS")}
    environment.update(LC_ALL="C.UTF-8", PATH=f"{folder}/bin:{environment['PATH']}", HOME=folder)
    done = subprocess.run(["bash", "-c", COMMANDS + command], capture_output=True, cwd=folder,
                          env=environment, stdin=subprocess.DEVNULL, timeout=60, check=False)
    output, messages = (text.decode(errors="backslashreplace").rstrip("\n")
                        for text in (done.stdout, done.stderr))
    return output, re.sub("^(?=.)", "2> ", messages, flags=re.M), done.returncode


def shown(output, messages, code):
    parts = [output, messages, f"[{code}]" if code else ""]
    return "".join(part + "\n" for part in parts if part)


class Case(unittest.TestCase):
    maxDiff = None

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = folder.name
        os.mkdir(f"{self.folder}/bin")
        os.symlink(PROGRAM, f"{self.folder}/bin/text-format")
        os.symlink(OPEN_AND_PRINT, f"{self.folder}/bin/open_and_print")
        os.symlink(ROOT / "examples", f"{self.folder}/examples")

    def output(self, command):
        output, messages, code = run(command, self.folder)
        self.assertEqual((messages, code), ("", 0))
        return output


class Transcripts(Case):
    def shown(self, block):
        return shown(*run(block[1].replace("\n> ", "\n"), self.folder))

    def renewed(self, block):
        return f"$ {block[1]}\n{self.shown(block)}{block[3]}"

    def check(self, path):
        text = path.read_text(encoding="utf-8")
        if UPDATE:
            path.write_text(BLOCK.sub(self.renewed, text), encoding="utf-8")
            return
        blocks = list(BLOCK.finditer(text))
        self.assertEqual(len(blocks), len(re.findall(r"^\$ ", text, re.M)))
        self.assertNotEqual(blocks, [])
        for block in blocks:
            with self.subTest(block[1]):
                expected = block[2].rstrip("\n")
                self.assertEqual(self.shown(block), expected and expected + "\n")


for transcript in sorted((HERE / "transcripts").iterdir()):
    setattr(Transcripts, f"test_{transcript.stem}",
            lambda self, path=transcript: self.check(path))


class Manners(Case):
    def test_lines_keep_to_the_width(self):
        # Forty readings that are all regular, with long values, wide characters and many columns.
        marks = [chr(c) for c in range(1, 128) if not chr(c).isalnum() and chr(c) not in
                 "\n\r\x1a\"$'()+-@[]{}."]
        line = "".join(f"{n + 10}{mark}" for n, mark in enumerate(marks)) + "9\n"
        for text in [line * 20, "日本語テキスト," * 40 + "\n日本," * 40, "x" * 500 + "\ny\n"]:
            Path(self.folder, "wide").write_text(text, encoding="utf-8")
            for command in ["detect", "explain"]:
                output, _, _ = run(f"text-format {command} -e UTF-8 wide", self.folder)
                for shown_line in output.splitlines():
                    width = sum(2 if c >= "\u3000" else 1 for c in shown_line)
                    self.assertLessEqual(width, 80, shown_line)


class Documents(Case):
    """What is written about the program is what it does."""

    def options(self):
        return json.loads(self.output("text-format generate json"))["options"]

    def test_help_and_man_page_know_every_option(self):
        text = self.output("text-format --help")
        man = re.sub(r"\\f.", "", self.output("text-format generate man"))
        man = man.replace("\\-", "-").replace("\\e", "\\")
        words = " ".join(text.split())
        for option in self.options():
            with self.subTest(option["name"]):
                value = option["value"] or "|".join(option["choices"])
                names = ", ".join(filter(None, [option["letter"], option["name"]]))
                heading = f"{names} {value}".strip()
                self.assertRegex(text, rf"(?m)^ +{re.escape(heading)}($|  )")
                self.assertIn(f"\n.TP\n{heading}\n{option['help']}\n", man)
                self.assertIn(option["help"], words)
        known = {option["name"] for option in self.options()}
        self.assertEqual(set(re.findall(r"--[a-z0-9][a-z0-9-]*", text)), known)
        self.assertTrue(all(len(line) <= 80 for line in text.splitlines()))
        for other in ["-h", "explain --help", "--help missing", "help", "help detect"]:
            self.assertEqual(self.output(f"text-format {other}"), text)

    def test_completions_know_every_option(self):
        texts = {shell: self.output(f"text-format generate {shell}")
                 for shell in ["bash", "zsh", "fish"]}
        for option in self.options():
            name = option["name"].removeprefix("--")
            self.assertRegex(texts["bash"], rf"--{name}[ '|)]")
            self.assertRegex(texts["zsh"], rf"'\*?--{name}=?\[")
            self.assertRegex(texts["fish"], rf" -l {name} ")

    def blocks(self, document, language):
        text = (ROOT / document).read_text(encoding="utf-8")
        return re.findall(rf"^```{language}\n(.*?)^```$", text, re.DOTALL | re.MULTILINE)

    def test_documents_show_real_output(self):
        os.symlink(ROOT / "tests", f"{self.folder}/tests")
        for document in ["README.md", "docs/command-line.md", "docs/how-it-decides.md"]:
            blocks = self.blocks(document, "console")
            self.assertGreaterEqual(len(blocks), 3)
            for block in blocks:
                command, _, output = block.removeprefix("$ tools/run ").partition("\n")
                self.assertEqual(run(f"text-format {command}", self.folder)[0] + "\n", output)

    def test_documents_name_real_options_and_members(self):
        known = {option["name"] for option in self.options()}
        foreign = {"--preset", "--build", "--install", "--prefix", "--cflags", "--libs"}
        for document in ["README.md", "docs/command-line.md"]:
            text = (ROOT / document).read_text(encoding="utf-8")
            self.assertLessEqual(set(re.findall(r"--[a-z0-9-]+\b", text)) - foreign, known)
        for name in json.loads(self.output("text-format explain --json examples/data/orders.csv")):
            self.assertIn(f"`{name}`", text)

    def test_readme_shows_the_example_program(self):
        source = (ROOT / "examples" / "pick_strategy.cpp").read_text(encoding="utf-8")
        licence, _, program = source.partition("\n")
        self.assertTrue(licence.startswith("// SPDX"))
        self.assertEqual(self.blocks("README.md", "cpp"), [program])
        text = (ROOT / "README.md").read_text(encoding="utf-8")
        self.assertIn(f"It prints `{self.output(PICK_STRATEGY)}`", text)


def main(arguments):
    global PROGRAM, PICK_STRATEGY, OPEN_AND_PRINT, UPDATE
    UPDATE = "--update" in arguments
    arguments = [a for a in arguments if a != "--update"]
    programs, tests = arguments[:3], arguments[3:]
    if len(programs) < 3 or not all(os.access(path, os.X_OK) for path in programs):
        print(f"cli_test.py: no such program: {programs}", file=sys.stderr)
        return 2
    PROGRAM, PICK_STRATEGY, OPEN_AND_PRINT = map(os.path.abspath, programs)
    result = unittest.main(argv=[__file__, *tests], exit=False).result
    return 0 if result.wasSuccessful() and result.testsRun > 0 else 1


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
