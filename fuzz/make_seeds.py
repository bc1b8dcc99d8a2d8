#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Writes the seeds of every fuzz target to corpus/TARGET/seed-NAME: small heads of the samples and
examples, hostile texts, and values, bytes and words that reach what the targets test.

Usage: make_seeds.py. Needs zstd and lz4. Files of other names (found by fuzzing) are left alone.
"""
import bz2
import gzip
import io
import lzma
import subprocess
import sys
import zipfile
from pathlib import Path

FUZZ = Path(__file__).resolve().parent
ROOT = FUZZ.parent
LONGEST = 600  # bytes of a text

HOSTILE = {
    "quotes": '"' * 99, "unclosed": '"a,"","b\n' * 9, "doubled": '"""",' * 20, "commas": "," * 99,
    "blanks": " " * 99, "line-feeds": "\n" * 99, "comments": "/* \n# x\n" * 9, "one-line": "a" * 99,
    "punctuation": "!#%&*,./:;<=>?\\^_`|~ \t" * 4, "endings": "a,b\ra,b\na,b\r\n" * 5, "empty": "",
    "end-mark": "a,b\n1,2\n\xff3,4\n",
    "types": "0x1F,0b11,1e5,NaN,12:30,1:02:03,2024-01-05,2024-01-05 10:00,x,,1+2i,$5,|\n" * 5,
}
TABLES = [
    "title\n\nname|size\n----|----\n'a'|1\n'b|c'|2\nsum|3\n", "sep=;\nx;y\nm;s\n1,5;02\n2,5;03\n",
    "# made by hand\n# a b c\n1 2 3\n4 5 6\n", "x||y\n1||2\n3||NA\n", "x\xa7y\n1\xa72\n3\xa74\n",
    "name    code  sum\nAda     A1    1.5\nBob     B2   12.5\nChris   C3    3.5\n",
    "day,n\n05.01.24,1.234\n31.01.24,\"1,2\"\n", "-- a -- b\n 1 2\n 3 4\n\n/* c */\n 5 6\n",
]
VALUES = """1 -1.5e10 .5 1,234.5 NaN -inf 1+2i 3.5j 0xFF 0b101 12:30 1:02:03 1:02:03:04 , | ; NaT $12
2024-01-05 2024/1/5 5.1.2024 5-Jan-24 20240105T093005Z 9:30PM 12e 1.2.3 - + abc 0x 0b2 1:2:3""".split()
VALUES += ["Friday, January 5 2024 09:30:05.125 PM +01:00", "Jan 5, 2024", "5 January 2024 9:30 UTC"]
FORMATS = ["yyyy-MM-dd", "d.M.yy HH:mm:ss.SSS", "EEE, dd MMM yyyy hh:mm a Z", "'at' H''m", "Q", "'"]
WORDS = """detect|--json|a.csv;explain|-d|\\t|--layout=delimited|f;--widths|4,6,10|--partial-field|wrap|f
--comment|/*|--comment|*/|--quote|none|f;--header-lines=auto|--columns|3|--decimal-mark|,|f
--thousands-mark|.|--missing|NA|--missing|-|--date-format|yyyy-MM-dd|f;--sample-size|1M|--records|all|f
--line-ending|CRLF|--line-ending|LF|--whitespace| |f;--delimiter|\\x1c|--layout|lines|f;--|--json
--encoding|utf-8|--strict|-;generate|man;--exponent|eE|--decimal-digits|3|--leading-character|$|f
--embedded-numbers|--keep-blanks|--rows|0|--width|40|--color|never|f;--delimter|,|f;-d;--json=5;--widths|;-h
--files0-from|-;--empty-lines|read|--consecutive|join|--leading|ignore|--trailing|error|f;-V
help|detect;--oneline|--member|x|--exclude-delimiter|,|--comment|none|a.zip;--save|s|--format|f|--width|auto|a
explain|--oneline|f;--decimal-mark|1|f;--save=|f;--delimiter|,|--exclude-delimiter|,|f"""


def texts():
    folders = [*sorted((ROOT / "tests/samples").glob("*.txt")), *sorted((ROOT / "examples/data").iterdir())]
    for path in folders:
        yield path.name, path.read_bytes()[:LONGEST]
    for name, text in HOSTILE.items():
        yield name, text.encode("latin-1")


def program(*command):
    return lambda data: subprocess.run(command, input=data, capture_output=True, check=True).stdout


def zipped(*members):
    archive = io.BytesIO()
    with zipfile.ZipFile(archive, "w", zipfile.ZIP_DEFLATED) as out:
        for name, data in members:
            out.writestr(zipfile.ZipInfo(name), data)
    return archive.getvalue()


def packed(data):
    yield "gzip", gzip.compress(data, mtime=0)
    yield "gzip-twice", gzip.compress(data[:50], mtime=0) * 2
    yield "gzip-nested", gzip.compress(gzip.compress(data, mtime=0), mtime=0)
    yield "bzip2", bz2.compress(data)
    yield "xz", lzma.compress(data)
    yield "zstd", program("zstd", "-cq")(data)
    yield "lz4", program("lz4", "-cq")(data)
    yield "zip", zipped(("table.csv", data))
    yield "zip-of-two", zipped(("a.csv", data), ("b.csv", b"1,2\n"))


def decode_seeds():
    table = (ROOT / "tests/samples").joinpath("quoted_lines.txt")
    data = (table.read_bytes() if table.exists() else b"a;\xc3\xa9\n1;2\n" * 9)[:300]
    for name, text in HOSTILE.items():
        yield name, text.encode("utf-8")
    for name, forms in packed(data):
        yield name, forms
        yield name + "-cut", forms[:len(forms) * 2 // 3]
    words = "Łódź;Москва;東京;𝄞\n" * 4
    for encoding in ("utf-8-sig", "utf-16", "utf-16-le", "utf-16-be", "utf-32", "utf-32-le"):
        yield encoding, words.encode(encoding)
    for encoding in ("cp1252", "koi8-r", "shift_jis", "gb18030"):
        yield encoding, words.encode(encoding, "ignore") * 3
    for name, head in {"pdf": b"%PDF-1.4\n", "parquet": b"PAR1", "sqlite": b"SQLite format 3\0"}.items():
        yield name, head + bytes(range(256))


def with_choices(*choices):
    return bytes([len(choices), *choices])


def seeds():
    for i, (name, text) in enumerate(texts()):
        yield "pick_strategy", name, with_choices() + text
        yield "fixed_stream", name, with_choices(3) + text[:200]
        yield "record_scan", name, with_choices(i % 4) + text[:300]
        yield "analysis", name, with_choices() + text
    comments = (0, 0, 1, 2, 2, *b"/*", 2, *b"*/")  # the third of the options that are drawn
    yield "pick_strategy", "with-comments", with_choices(0, *comments) + b"/* a\n b */1,2\n3,4\n" * 9
    yield "record_scan", "with-comments", with_choices(0, 0, 0, 0, *comments) + b"/* a\n b */1,2\n3,4\n" * 9
    for i, text in enumerate(TABLES):
        yield "analysis", f"table-{i}", with_choices() + text.encode("latin-1")
        yield "analysis", f"given-{i}", with_choices(0, 1 << i % 7, i % 4, 1 + i) + text.encode("latin-1")
    for mode, rules in enumerate((2, 1, 5, 6)):
        layout = (0, 0, 0, 0, 0, 0, 0, 1, 3, 3, 4, 5, 0, 0, 0, 0, 0, rules % 3, rules % 3, rules % 3, rules % 3, rules)
        yield "record_scan", f"rules-{rules}", with_choices(mode % 3, 0, 0, 0, *layout) + b",a,,b,\n12345678901\n\n12\n"
    for i, value in enumerate(VALUES):
        yield "value", f"value-{i}", with_choices() + value.encode()
    for i, form in enumerate(FORMATS):
        yield "value", f"format-{i}", with_choices(128) + form.encode() + b"\0" + b"2024-01-05 9:30"
    for name, data in decode_seeds():
        yield "decode", name, with_choices() + data
    for i, words in enumerate(WORDS.replace("\n", ";").split(";")):
        yield "arguments", f"words-{i}", words.replace("|", "\n").encode()


def main():
    if len(sys.argv) > 1:
        sys.exit(__doc__)
    for old in FUZZ.glob("corpus/*/seed-*"):
        old.unlink()
    count = 0
    for target, name, data in seeds():
        folder = FUZZ / "corpus" / target
        folder.mkdir(parents=True, exist_ok=True)
        (folder / f"seed-{name}").write_bytes(data)
        count += 1
    print(f"{count} seeds")


if __name__ == "__main__":
    main()
