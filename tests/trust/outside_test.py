#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""The library touches nothing outside, and the program tells when it cannot write.

Usage: outside_test.py LIBRARY IMPORT_LIBRARY ANSWERS PROGRAM
Needs nm and, with the sources of locales, localedef. Exit code 2 when something is missing.
"""
import os
import re
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

SOURCES = Path(__file__).resolve().parents[2]
TEXTS = [*sorted((SOURCES / "tests/samples").glob("*.txt")), *sorted((SOURCES / "examples/data").iterdir())]

# Every name that the detection library may ask of others; all else would be a way to the outside.
ALLOWED = re.compile(
    r"_Z(nwm|nam|dlPvm?|daPvm?)"  # new and delete
    r"|_ZSt\d+__throw_\w+|_ZNSt9exceptionD2Ev|_ZNSt1[26](length_error|invalid_argument)[CD]1\w*"
    r"|_ZT[IV]St\w+|_ZTVN10__cxxabiv1\w+"  # standard exceptions and type information
    r"|__cxa_\w+|_Unwind_Resume|__gxx_personality_v0|__libc_single_threaded"
    r"|_ITM_(de)?registerTMCloneTable|__gmon_start__|__stack_chk_fail"  # start and end of a library
    r"|mem(cpy|move|set|cmp|chr)|str(cmp|len)|log2")


def foreign_symbols(library):
    lines = subprocess.run(["nm", "--dynamic", "--undefined-only", "--format=posix", library],
                           capture_output=True, text=True, check=True).stdout.splitlines()
    names = {line.split()[0].split("@")[0] for line in lines}
    return len(names), sorted(name for name in names if not ALLOWED.fullmatch(name))


class Outside(unittest.TestCase):
    maxDiff = None

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)

    def test_imported_symbols(self):
        count, foreign = foreign_symbols(LIBRARY)
        self.assertGreater(count, 10)
        self.assertEqual(foreign, [])
        self.assertIn("read", foreign_symbols(IMPORT_LIBRARY)[1], "the check sees what opens files")
        print(f"figure: {count} imported symbols, none of them leads outside")

    def test_locales(self):
        units = []
        for path in TEXTS:
            units.append(self.folder / path.name)
            units[-1].write_bytes(path.read_bytes().decode("latin-1").encode("utf-16-le"))
        answers = []
        for locale in ("C", "de_DE.UTF-8", "tr_TR.UTF-8"):
            if locale != "C":
                subprocess.run(["localedef", "--no-archive", "-i", locale[:5], "-f", "UTF-8",
                                self.folder / locale], check=True)
            environment = {**os.environ, "LC_ALL": locale, "LOCPATH": str(self.folder)}
            answers.append([subprocess.run(command, env=environment, capture_output=True).stdout
                            for command in ([ANSWERS, *units], [PROGRAM, "detect", "--json", *TEXTS],
                                            [PROGRAM, "explain", *TEXTS])])
        self.assertEqual(len(answers[0][0].splitlines()), len(TEXTS))
        self.assertEqual(answers[0], answers[1])
        self.assertEqual(answers[0], answers[2])
        print(f"figure: the same answers to {len(TEXTS)} texts under {len(answers)} locales")

    def test_full_disk(self):
        for arguments in (["detect"], ["detect", "--json"], ["explain"], ["explain", "--json"]):
            self.expect_full([*arguments, TEXTS[0]])
        for arguments in (["generate", "man"], ["generate", "bash"], ["--help"], ["--version"]):
            self.expect_full(arguments)

    def expect_full(self, arguments):
        with self.subTest(arguments=arguments), open("/dev/full", "wb") as full:
            done = subprocess.run([PROGRAM, *arguments], stdout=full, stderr=subprocess.PIPE)
            self.assertEqual(done.returncode, 2)
            self.assertIn(os.strerror(28), done.stderr.decode())

    def test_end_in_mid_character(self):
        data = "Zürich;Genève;1\n".encode() * 40 + "Zürich;東".encode()[:-1]
        path = self.folder / "cut.csv"
        path.write_bytes(data)
        file = subprocess.run([PROGRAM, "detect", path], capture_output=True)
        pipe = subprocess.run([PROGRAM, "detect", "-"], input=data, capture_output=True)
        # Whether the line that is cut is one of the table stays open.
        self.assertEqual((file.returncode, pipe.returncode), (1, 1))
        self.assertIn("728", file.stdout.decode())
        self.assertEqual(file.stdout.splitlines()[1:], pipe.stdout.splitlines()[1:])


def main(arguments):
    global LIBRARY, IMPORT_LIBRARY, ANSWERS, PROGRAM
    if len(arguments) != 4:
        sys.exit(__doc__)
    LIBRARY, IMPORT_LIBRARY, ANSWERS, PROGRAM = arguments
    missing = [name for name in ("nm", "localedef", *arguments) if not shutil.which(name)
               and not os.path.isfile(name)]
    if missing:
        print("outside_test: missing:", ", ".join(missing), file=sys.stderr)
        return 2
    return 0 if unittest.main(argv=[sys.argv[0]], exit=False).result.wasSuccessful() else 1


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
