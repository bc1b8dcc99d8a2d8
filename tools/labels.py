# SPDX-License-Identifier: MIT
"""What the labels of files say, and when an answer of benchmarks/answers.cpp agrees with one.

A table of labels has the columns id, layout, delimiter, header_lines, num_columns, also and doubt,
apart by tabs: `also` names a second layout that reads the same table, '?' is what nobody labelled,
and rows that are in doubt as "arguable" are left out. `delimiter` writes a tab, a blank and the
like as an escape, and '-' where there is none.
"""
import csv
import json

LAYOUTS = ("delimited", "space", "fixed", "line")
ESCAPES = {"\\t": "\t", "\\s": " ", "\\x14": "\x14", "\\x1c": "\x1c", "-": ""}


def read_labels(path):
    """The labels that are not arguable, by the id of the file, in the order of the table."""
    with open(path, encoding="utf-8", newline="") as file:
        rows = list(csv.DictReader(file, delimiter="\t", quoting=csv.QUOTE_NONE))
    return {row["id"]: row for row in rows
            if not (row.get("doubt") or "sure").startswith("arguable")}


def read_answers(path):
    with open(path, encoding="utf-8") as file:
        return {answer["id"]: answer for answer in map(json.loads, file)}


def delimiter_of(label):
    return ESCAPES.get(label["delimiter"], label["delimiter"])


def is_decided(answer):
    return answer.get("layout") != "none" and answer.get("decided") is not False


def is_right(label, answer):
    """Whether the layout of the answer, with its delimiter, is that of the label."""
    layout, columns = answer.get("layout"), answer.get("num_columns")
    if label["layout"] == "line":
        return layout == "line" or columns == 1 or not is_decided(answer)
    if label["layout"] == "delimited":
        if columns == 1:
            return False
        delimiter = delimiter_of(label)
        if delimiter == " " and layout == "space":
            return True
        return layout == "delimited" and answer.get("delimiter") == delimiter
    return layout == label["layout"] or (layout in ("space", "fixed") and layout in label["also"])


def is_silently_wrong(label, answer):
    return is_decided(answer) and not is_right(label, answer)


def squared_error(label, answer):
    """Of the confidence, for the Brier score; None for an answer that is not decided."""
    if not is_decided(answer) or answer.get("confidence") is None:
        return None
    return (answer["confidence"] - is_right(label, answer)) ** 2


def agrees(label, answer, member):
    """Whether a number of the answer is the label's; None where nobody labelled it."""
    if label["layout"] == "line" or label[member] == "?":
        return None
    return answer.get(member) == int(label[member])
