# SPDX-License-Identifier: MIT
"""Tables of labelled delimited files, and how they are written lined up, for tools/cuts.

A Table holds names (or None) and records that all have as many values as there are columns, none
with a control character in it. Every function in VARIANTS takes one, the delimiter it was read by
and a random.Random, and gives the lines of the new file with their label, or None where that label
would not be certain.
"""
import csv
import io
import re
import unicodedata
from dataclasses import dataclass

from cut_lines import spans, splits_at_blanks
from cut_texts import remark

NUMBER = re.compile(r"[-+]?(\d+\.?\d*|\.\d+)([eE][-+]?\d+)?")


@dataclass
class Table:
    names: list
    records: list

    @property
    def width(self):
        return len(self.records[0])

    def rows(self):
        return ([self.names] if self.names else []) + self.records

    def columns(self):
        return list(zip(*self.records))

    def values(self):
        return [value for row in self.rows() for value in row]

    def narrow(self, widest):
        """The first columns, as many as go into a line."""
        taken, total = 0, 0
        for column in zip(*self.rows()):
            total += max(map(cells, column)) + 2
            if total > widest:
                break
            taken += 1
        return Table(self.names and self.names[:taken], [row[:taken] for row in self.records])

    def is_number(self):
        return [any(column) and all(NUMBER.fullmatch(v) or not v for v in column)
                for column in self.columns()]


def read_table(source, chance):
    """The table of a delimited file, up to the first record that is not plain, or None."""
    if source.row["layout"] != "delimited" or source.header is None or source.text is None:
        return None
    if len(source.delimiter) != 1 or source.delimiter == " ":
        return None
    lines = re.findall(r"[^\r\n]*(?:\r\n|\r|\n)|[^\r\n]+", source.text)
    columns = source.row["num_columns"]
    records = plain_records("".join(lines[source.header:]), source.delimiter, columns,
                            chance.choice((3, 8, 8, 25, 80, 300)))
    if len(records) < 3 or len(records[0]) < 2:
        return None
    above = plain_records("".join(lines[max(0, source.header - 1):source.header]),
                          source.delimiter, str(len(records[0])), 1)
    names = above[0] if above and all(above[0]) else None
    if source.header and not names:
        return None
    return Table(names, records)


def plain_records(text, delimiter, columns, most):
    records = []
    try:
        for row in csv.reader(io.StringIO(text, newline=""), delimiter=delimiter, strict=True):
            row = [value.strip() for value in row]
            if (len(row) != (int(columns) if columns.isdigit() else len(row))
                    or records and len(row) != len(records[0]) or not any(row)
                    or not all(is_plain(value) for value in row)):
                break
            records.append(row)
            if len(records) == most:
                break
    except csv.Error:
        pass
    return records


def is_plain(value):
    return len(value) <= 200 and '"' not in value and value.isprintable()


def cells(text):
    return sum(2 if unicodedata.east_asian_width(c) in "WF" else 1 for c in text)


def label(layout, table, header_lines=None, **others):
    header = int(table.names is not None) if header_lines is None else header_lines
    return dict({"layout": layout, "delimiter": "-", "header_lines": str(header),
                 "num_columns": str(table.width), "also": "-"}, **others)


def pad(text, width, at_right):
    blanks = " " * (width - cells(text))
    return blanks + text if at_right else text + blanks


def lined_up(table, gaps, chance, names_at_right):
    """The rows with their columns padded; gaps[i] blanks stand behind column i."""
    numbers = table.is_number()
    widths = [max(map(cells, column)) for column in zip(*table.rows())]
    lines = []
    for row in table.rows():
        at_right = [names_at_right if row is table.names else n for n in numbers]
        lines.append("".join(pad(value, width, right) + " " * gap for value, width, right, gap
                             in zip(row, widths, at_right, gaps)))
    if chance.random() < 0.6:
        lines = [line.rstrip() for line in lines]
    if table.names and chance.random() < 0.25:
        joint = chance.choice((" ", "-"))
        ruler = "".join("-" * width + joint * gap for width, gap in zip(widths, gaps)).rstrip()
        return lines[:1] + [ruler] + lines[1:], 2
    return lines, int(table.names is not None)


def aligned(table, _, chance):
    """By runs of blanks: no value is empty or holds a blank."""
    table = table.narrow(200)
    if table.width < 2 or not all(table.values()):
        return None
    table.names = table.names and [name.replace(" ", "_") for name in table.names]
    if any(" " in value for value in table.values()):
        return None
    gap = chance.choice((1, 2, 2, 3))
    if all(len({cells(v) for v in column}) == 1 for column in zip(*table.rows())):
        gap = 2
    lines, header = lined_up(table, [gap] * table.width, chance, chance.random() < 0.4)
    if not all("  " in line.strip() for line in lines[header:]) and gap == 1:
        return None
    return lines, label("space", table, header, also="fixed")


def fixed(table, _, chance):
    """Padded columns with values that are empty or hold blanks."""
    table = table.narrow(240)
    if table.width < 2 or len(table.records) * (table.width - 1) < 5:
        return None
    if not all(map(any, table.columns())):
        return None
    if any("  " in value for value in table.values()):
        return None
    gap = chance.choice((1, 1, 2, 3))
    lines, header = lined_up(table, [gap] * table.width, chance, chance.random() < 0.3)
    data = lines[header:]
    if splits_at_blanks(data):
        return None
    columns = str(table.width) if len(spans(data)) == table.width else "?"
    return lines, label("fixed", table, header, num_columns=columns)


def fixed_touching(table, _, chance):
    """Without names, and with columns that have no blank between them."""
    table = Table(None, table.narrow(240).records)
    if table.width < 3 or len(table.records) < 8 or not all(map(any, table.columns())):
        return None
    numbers = table.is_number()
    gaps = [0 if numbers[i + 1] and chance.random() < 0.6 else 1 for i in range(table.width - 1)]
    lines, _ = lined_up(table, gaps + [0], chance, False)
    if len({cells(line) for line in lines}) > 1 or splits_at_blanks(lines) or 0 not in gaps:
        return None
    return lines, label("fixed", table, 0, num_columns="?")


def fixed_tail(table, _, chance):
    """Columns without blanks, the last one free text of different lengths."""
    table = table.narrow(120)
    if (table.width < 3 or len(table.records) * (table.width - 1) < 12
            or not all(table.values())):
        return None
    records = [row[:-1] + [remark(chance)] for row in table.records]
    if any(" " in value for row in records for value in row[:-1]):
        return None
    table = Table(table.names and [n.replace(" ", "_") for n in table.names[:-1]] + ["remark"],
                  records)
    lines, header = lined_up(table, [chance.choice((1, 2))] * table.width, chance, False)
    if splits_at_blanks(lines[header:]):
        return None
    return [line.rstrip() for line in lines], label("fixed", table, header)


# With each variant how many files of it are made at most.
VARIANTS = {
    "aligned": (aligned, 180), "fixed": (fixed, 180), "fixed_touching": (fixed_touching, 90),
    "fixed_tail": (fixed_tail, 110),
}
