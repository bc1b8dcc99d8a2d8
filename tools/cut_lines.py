# SPDX-License-Identifier: MIT
"""Cuts of whole lines of a labelled file, and lines put into it, for tools/cuts.

Every function in VARIANTS takes a Source and a random.Random and gives the bytes of the new file
with what its label says otherwise, or None where the file cannot be changed in that way for sure.
"""
import re

from cut_texts import remark, sentence, title

LIMIT = 60000  # bytes of a file, about

def quotes_closed(source, lines):
    return source.row["layout"] != "delimited" or b"".join(lines).count(b'"') % 2 == 0


def holds_data(source, lines):
    """Whether each line holds the delimiter, and none of them is blank."""
    if source.row["layout"] != "delimited":
        return all(line.strip() for line in lines)
    return all(source.delimiter.encode() in line for line in lines)


def head(count):
    """Everything above the data and the first lines of it."""
    def cut(source, _):
        if source.header is None or len(source.lines) < source.header + count + 2:
            return None
        data = source.lines[source.header:source.header + count]
        return b"".join(source.lines[:source.header] + data), columns_left(source, data)
    return cut


def columns_left(source, data):
    """What the number of columns of a part is, where the lines of a delimited file tell it."""
    columns = source.row["num_columns"]
    if source.row["layout"] != "delimited" or not columns.isdigit() or b'"' in b"".join(data):
        return {}
    counts = {line.count(source.delimiter.encode()) + 1 for line in data}
    return {} if counts == {int(columns)} else {"num_columns": "?"}


def reads_by_blanks(source, data):
    """Whether so few lines of fixed width hold no sign against columns apart by blanks."""
    return (source.row["layout"] == "fixed" and source.row["num_columns"].isdigit()
            and all(len(line.split()) == int(source.row["num_columns"]) for line in data))


def plain_head(count):
    """As head, but only of whole records that show the layout."""
    def cut(source, chance):
        made = head(count)(source, chance)
        data = source.lines[source.header:source.header + count] if made else []
        if not made or not quotes_closed(source, data) or not holds_data(source, data):
            return None
        if source.row["layout"] == "line" and is_like_a_table(data):
            return None
        also = {"also": "space"} if reads_by_blanks(source, data) else {}
        return made[0], dict(made[1], **also)
    return cut


def middle(source, _):
    if source.header is None or len(source.lines) - source.header < 60:
        return None
    first = source.header + (len(source.lines) - source.header) // 2 - 10
    lines = source.lines[first:first + 20]
    if not quotes_closed(source, lines):
        return None
    return b"".join(lines), dict(columns_left(source, lines), header_lines="0")


def spans(lines):
    """The runs of positions, as (first, behind), at which some line has no blank."""
    found, first = [], None
    for place in range(max(map(len, lines)) + 1):
        is_blank = all(line[place:place + 1] in ("", " ") for line in lines)
        if not is_blank and first is None:
            first = place
        elif is_blank and first is not None:
            found.append((first, place))
            first = None
    return found


def splits_at_blanks(lines):
    """Whether nearly all lines have the same number of words."""
    counts = [len(line.split()) for line in lines]
    return max(counts.count(n) for n in set(counts)) >= 0.8 * len(counts)


def is_like_a_table(lines):
    """Whether a part of a text could pass for a table: each line has as many of some delimiter, or
    two blanks and more stand in all lines at the same two places, or half of them have two gaps."""
    lines = [line.decode("latin-1").rstrip() for line in lines if line.strip()]
    for delimiter in ",;\t|":
        if len({line.count(delimiter) for line in lines}) == 1 and delimiter in lines[0]:
            return True
    if sum(len(re.findall(r"\S {3,}(?=\S)", line)) >= 2 for line in lines) * 2 >= len(lines):
        return True
    shortest = min(map(len, lines))
    found = spans([line[:shortest] for line in lines])
    return sum(b[0] - a[1] >= 2 for a, b in zip(found, found[1:])) >= 2


def some_lines(count, at_middle):
    """Lines of a file that is no table."""
    def cut(source, _):
        if source.row["layout"] != "line" or len(source.lines) < count + 4:
            return None
        first = (len(source.lines) - count) // 2 if at_middle else 0
        lines = source.lines[first:first + count]
        if sum(bool(line.strip()) for line in lines) * 2 <= count or is_like_a_table(lines):
            return None
        return b"".join(lines), {}
    return cut


def body(source, chance):
    """The lines of a table, up to a number that differs from file to file, quotes closed; or []."""
    if source.row["layout"] == "line" or source.header is None:
        return []
    lines = source.lines[:source.header + chance.choice((4, 10, 25, 80, 400))]
    while lines and (sum(map(len, lines)) > LIMIT or not quotes_closed(source, lines)):
        lines.pop()
    if len(lines) < source.header + 3:
        return []
    return lines if lines[-1].endswith((b"\n", b"\r")) else lines[:-1] + [lines[-1] + source.ending]


def comment_sign(source, chance):
    """A sign of comments that the file itself does not begin lines with, or None."""
    signs = [sign for sign in ("#", "#", "#", "#", "%", "//")
             if sign != source.delimiter
             and not any(line.startswith(sign.encode()) for line in source.lines)]
    return chance.choice(signs) if signs else None


def comment(sign, chance, ending):
    return f"{sign} {sentence(chance)}".encode() + ending


def on_top(make):
    def put(source, chance):
        lines = body(source, chance)
        new = make(source, chance) if lines else None
        if not new:
            return None
        return b"".join(new + lines), {"header_lines": str(source.header + len(new))}
    return put


def comment_block(source, chance):
    sign = comment_sign(source, chance)
    return sign and [comment(sign, chance, source.ending) for _ in range(chance.randint(1, 7))]


def title_line(source, chance):
    return [title(chance).encode() + source.ending]


def title_and_blank(source, chance):
    return title_line(source, chance) + [source.ending]


def between(source, chance):
    """Comments between the records, sometimes more than records."""
    lines, sign = body(source, chance), comment_sign(source, chance)
    if not lines or not sign:
        return None
    share = chance.choice((0.1, 0.2, 0.5, 1.2))
    out, is_open, is_put = [], False, False
    for number, line in enumerate(lines):
        out.append(line)
        is_open ^= source.row["layout"] == "delimited" and line.count(b'"') % 2 == 1
        if number >= source.header and not is_open and chance.random() < share:
            out += [comment(sign, chance, source.ending) for _ in range(1 + (share > 1))]
            is_put = True
    return (b"".join(out), {}) if is_put else None


def at_line_ends(source, chance):
    """Comments behind the records of a delimited table without quotes."""
    lines, sign = body(source, chance), comment_sign(source, chance)
    if (not lines or not sign or source.row["layout"] != "delimited" or source.delimiter == " "
            or b'"' in b"".join(lines) or sign.encode() in b"".join(lines)):
        return None
    width = max(len(line.rstrip()) for line in lines) + 1 if chance.random() < 0.4 else 0
    share = chance.choice((0.4, 0.8, 1))
    data = lines[source.header:]
    if not holds_data(source, data):
        return None
    marked = [line.rstrip(b"\r\n").ljust(width) + b" " + comment(sign, chance, source.ending)
              if chance.random() < share else line for line in data]
    return (b"".join(lines[:source.header] + marked), {}) if marked != data else None


def footer(source, chance):
    lines = body(source, chance)
    if not lines:
        return None
    count = len(lines) - source.header
    last = chance.choice([f"Total: {count}", f"({count} rows)", f"# {sentence(chance)}",
                          f"Source: {title(chance)}", f"* {sentence(chance)}",
                          "End of file"])
    blank = [source.ending] if chance.random() < 0.4 else []
    return b"".join(lines + blank + [last.encode() + source.ending]), {}


def total_row(source, chance):
    """A last record that begins with "Total", with as many fields as the others."""
    lines = body(source, chance)
    columns = source.row["num_columns"]
    if not lines or source.row["layout"] != "delimited" or not columns.isdigit():
        return None
    fields = [str(chance.randint(100, 99999)) if chance.random() < 0.6 else ""
              for _ in range(int(columns) - 1)]
    if not fields or not any(fields) or source.delimiter == " ":
        return None
    return b"".join(lines) + source.delimiter.join(["Total"] + fields).encode() + source.ending, {}


def plain_data(source, lines):
    """The texts of the lines of a lined-up table, and where its data begin; or None."""
    layout, columns = source.row["layout"], source.row["num_columns"]
    if not lines or layout not in ("space", "fixed"):
        return None
    text = [line.decode("latin-1").rstrip("\r\n") for line in lines]
    data = text[source.header:]
    if not columns.isdigit() or not "".join(text).isascii():
        return None
    if any("\t" in line or not line.strip() for line in data):
        return None
    if layout == "space" and any(len(line.split()) != int(columns) for line in data):
        return None
    return text


def joined(source, text):
    ending = source.ending.decode()
    return (ending.join(text) + ending).encode()


def ragged_tail(source, chance):
    """Free text of different lengths behind the columns of a table."""
    text = plain_data(source, body(source, chance))
    data = text[source.header:] if text else []
    if not data or source.row["layout"] == "fixed" and len({len(line) for line in data}) > 1:
        return None
    width = max(len(line.rstrip()) for line in data) + chance.randint(1, 3)
    text[source.header:] = [line.rstrip().ljust(width) + remark(chance) for line in data]
    columns = int(source.row["num_columns"]) + 1
    return joined(source, text), {"layout": "fixed", "also": "-", "num_columns": str(columns)}


def emptied(source, chance):
    """A table lined up by blanks, with values taken out that leave a gap."""
    text = plain_data(source, body(source, chance))
    if not text or source.row["layout"] != "space":
        return None
    places = spans(text[source.header:])
    if len(places) != int(source.row["num_columns"]) or len(places) < 3:
        return None
    share, data = chance.choice((0.15, 0.3, 0.5)), []
    for line in text[source.header:]:
        for first, behind in places[1:]:
            if chance.random() < share:
                line = line[:first] + " " * (behind - first) + line[behind:]
        data.append(line)
    if spans(data) != places or splits_at_blanks(data):
        return None
    return joined(source, text[:source.header] + data), {"layout": "fixed", "also": "-"}


# With each variant how many files of it are made at most; None: of all that can be cut so.
VARIANTS = {
    "head+3": (head(3), None), "head+8": (head(8), None), "mid20": (middle, None),
    "head+2": (plain_head(2), None), "head+5": (plain_head(5), None),
    "line_head20": (some_lines(20, False), None), "line_mid3": (some_lines(3, True), None),
    "line_mid8": (some_lines(8, True), None), "line_mid20": (some_lines(20, True), None),
    "comment_block": (on_top(comment_block), 150), "title": (on_top(title_line), 150),
    "title_blank": (on_top(title_and_blank), 120), "comments_between": (between, 150),
    "comments_behind": (at_line_ends, 90), "footer": (footer, 120), "total_row": (total_row, 90),
    "ragged_tail": (ragged_tail, None), "emptied": (emptied, None),
}
