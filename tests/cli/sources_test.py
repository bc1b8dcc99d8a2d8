#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""One table gets one answer, however its bytes come.

Usage: sources_test.py PROGRAM
PROGRAM is text-format. Exit code 2 when it, or zstd or lz4, is missing.
"""

import bz2
import gzip
import io
import json
import lzma
import os
import shutil
import subprocess
import sys
import tempfile
import time
import unittest
import zipfile
from pathlib import Path

PROGRAM = None

WORDS = {
    "utf-8": "Zürich Genève Łódź Αθήνα Москва 東京",
    "cp1252": "Zürich Genève Málaga Tromsø København Besançon",
    "iso8859-2": "Łódź Kraków Częstochowa Gdańsk Białystok Poznań",
    "koi8-r": "Москва Казань Самара Воронеж Пермь Екатеринбург",
    "shift_jis": "東京の天気 大阪の港 名古屋です 札幌から 神戸まで 福岡では",
    "gb18030": "北京的天气 上海的港口 广州市区 深圳机场 成都车站 重庆江边",
}


def table(words, line_ending="\n"):
    """Forty lines: a number, a name and a date, without a row of names."""
    names = words.split()
    lines = [f"{1000 + 7 * i};{names[i % len(names)]} {names[(i * i + 1) % len(names)]};"
             f"2024-03-{1 + i % 28:02}" for i in range(40)]
    return "".join(line + line_ending for line in lines)


def zipped(data):
    archive = io.BytesIO()
    with zipfile.ZipFile(archive, "w", zipfile.ZIP_DEFLATED) as out:
        out.writestr("table.csv", data)
    return archive.getvalue()


def piped_through(*command):
    return lambda data: subprocess.run(command, input=data, capture_output=True, check=True).stdout


PACKERS = {
    "none": bytes, "gzip": gzip.compress, "bzip2": bz2.compress, "xz": lzma.compress,
    "zstd": piped_through("zstd", "-cq"), "lz4": piped_through("lz4", "-c"), "zip": zipped,
}


class Sources(unittest.TestCase):
    maxDiff = None

    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.addCleanup(self.folder.cleanup)
        self.path = Path(self.folder.name).resolve() / "table"

    def detect(self, data):
        self.path.write_bytes(data)
        return subprocess.run([PROGRAM, "detect", "--json", str(self.path)], capture_output=True,
                              timeout=60, check=False)

    def core(self, output):
        """What does not depend on the bytes, and what the answer says of them."""
        answer = json.loads(output)
        del answer["path"], answer["evidence"]["encoding_reason"]
        for column in answer["evidence"]["columns"]:
            del column["longest_value"]  # the words differ
        return answer, answer["format"].pop("source")

    def expected(self):
        core, _ = self.core(self.detect(table(WORDS["utf-8"]).encode()).stdout)
        self.assertEqual((core["format"]["layout"]["delimiters"],
                          [column["type"] for column in core["format"]["columns"]],
                          core["evidence"]["records_sampled"]),
                         ([";"], ["integer", "text", "date"], 40))
        return core

    def test_forms_of_one_table(self):
        expected = self.expected()
        names = {"cp1252": "windows-1252", "iso8859-2": "ISO-8859-2", "koi8-r": "KOI8-R",
                 "shift_jis": "Shift_JIS", "gb18030": "GB18030", "utf-8-sig": "UTF-8"}
        encodings = ["utf-8", "utf-8-sig", "utf-16-le", "utf-16-be", "utf-16", "utf-32-le",
                     "utf-32-be", "utf-32", *list(WORDS)[1:]]
        for encoding in encodings:
            for ending, word in (("\n", "lf"), ("\r\n", "crlf"), ("\r", "cr")):
                data = table(WORDS.get(encoding, WORDS["utf-8"]), ending).encode(encoding)
                for form, pack in PACKERS.items():
                    with self.subTest(encoding=encoding, ending=word, form=form):
                        done = self.detect(pack(data))
                        core, source = self.core(done.stdout)
                        self.assertEqual((done.returncode, done.stderr), (0, b""))
                        self.assertEqual(core, expected)
                        self.assertEqual(source["compression"], form)
                        self.assertEqual(source["line_ending_counts"],
                                         {"lf": 0, "crlf": 0, "cr": 0, word: 40})
                        if encoding in names:
                            self.assertEqual(source["encoding"], names[encoding])

    def test_pipes_in_pieces(self):
        expected = self.expected()
        plain = table(WORDS["utf-8"]).encode()
        for data in (plain, gzip.compress(plain), plain.decode().encode("utf-16")):
            for size in (1, 7, 65536):
                with self.subTest(size=size), subprocess.Popen(
                        [PROGRAM, "detect", "--json", "-"], stdin=subprocess.PIPE,
                        stdout=subprocess.PIPE, bufsize=0) as process:
                    for start in range(0, len(data), size):
                        process.stdin.write(data[start:start + size])
                        if start < 40 * size:
                            time.sleep(0.001)  # so that pieces arrive as such
                    output, _ = process.communicate(timeout=60)
                    self.assertEqual(process.returncode, 0)
                    self.assertEqual(self.core(output)[0], expected)


def main(arguments):
    global PROGRAM
    if len(arguments) != 1:
        sys.exit(__doc__)
    PROGRAM = arguments[0]
    needed = [PROGRAM, "zstd", "lz4"]
    missing = [name for name in needed if not (os.path.isfile(name) or shutil.which(name))]
    if missing:
        print("sources_test: missing:", ", ".join(missing), file=sys.stderr)
        return 2
    return 0 if unittest.main(argv=[sys.argv[0]], exit=False).result.wasSuccessful() else 1


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
