# SPDX-License-Identifier: MIT
"""Tables of labelled delimited files in other dialects and in borders, for tools/cuts.

The functions in VARIANTS are as those of cut_tables.py.
"""
from cut_tables import NUMBER, Table, cells, label, pad
from cut_texts import remark


def mark_of(delimiter):
    """How a label writes a delimiter."""
    return {"\t": "\\t", "\x14": "\\x14"}.get(delimiter, delimiter)


def written(table, delimiter, quote=lambda value, is_text: False, behind=""):
    """The rows, each value in quotes that holds the delimiter or that quote() picks."""
    texts = [not number for number in table.is_number()]
    lines = []
    for row in table.rows():
        out = [f'"{value}"' if delimiter in value or quote(value, is_text or row is table.names)
               else value for value, is_text in zip(row, texts)]
        lines.append((delimiter + behind).join(out))
    return lines, label("delimited", table, delimiter=mark_of(delimiter))


def by(delimiter):
    def cut(table, was, _):
        return None if was == delimiter else written(table, delimiter)
    return cut


def by_several(table, _, chance):
    """By a delimiter of several characters, sometimes with one of them in a value."""
    delimiter = chance.choice(("||", "~|~", "||", "::", "|~|"))
    table = Table(table.names, [list(row) for row in table.records])
    if chance.random() < 0.3:
        for row in table.records[::2]:
            row[0] += delimiter[0] + "a" if row[0] and not NUMBER.fullmatch(row[0]) else ""
    if any(delimiter in value for value in table.values()):
        return None
    if any(value.startswith(delimiter[0]) or value.endswith(delimiter[0])
           for value in table.values()) or (delimiter == "||" and "" in table.values()):
        return None
    return written(table, delimiter)


def by_wide(table, _, chance):
    delimiter = chance.choice(("\uff0c", "\u061b", "\u00a6"))
    return None if any(delimiter in v for v in table.values()) else written(table, delimiter)


def by_thorns(table, *_):
    """Each value between thorns, apart by the control character that goes with them."""
    if not all(table.values()) or any("\u00fe" in value for value in table.values()):
        return None
    lines = ["\x14".join(f"\u00fe{value}\u00fe" for value in row) for row in table.rows()]
    return lines, label("delimited", table, delimiter=mark_of("\x14"))


def decimal_commas(table, *_):
    records = [[value.replace(".", ",") if NUMBER.fullmatch(value) else value for value in row]
               for row in table.records]
    if records == table.records or any(";" in value for value in table.values()):
        return None
    return written(Table(table.names, records), ";")


def blanks_behind(table, was, _):
    """A blank behind each delimiter; values that hold the delimiter are not taken."""
    if was not in ",;" or any(was in value for value in table.values()) or not all(table.values()):
        return None
    return written(table, was, behind=" ")


def blanks_before_quotes(table, was, _):
    if was not in ",;" or all(table.is_number()):
        return None
    return written(table, was, lambda value, is_text: is_text, behind=" ")


def quoted(table, was, chance):
    return written(table, was, chance.choice((lambda value, is_text: is_text,
                                              lambda value, is_text: True)))


def with_quotes(table, mark, chance):
    """The table with some words in quotes and some delimiters in its texts, or None."""
    texts, count, records = [not number for number in table.is_number()], 0, []
    for row in table.records:
        row = list(row)
        for place, value in enumerate(row):
            words = value.split(" ")
            if texts[place] and value and chance.random() < 0.5:
                pick = chance.randrange(len(words))
                words[pick] = chance.choice(mark(words[pick], remark(chance).split()[0]))
                count += 1
            row[place] = " ".join(words)
        records.append(row)
    return Table(table.names, records) if count * 2 >= len(records) else None


def doubled_quotes(table, was, chance):
    table = with_quotes(table, lambda word, more: (f'""{word}""', f'{word}{was} ""{more}""'),
                        chance)
    return table and written(table, was, lambda value, is_text: is_text)


def escaped_quotes(table, was, chance):
    if any("\\" in value for value in table.values()):
        return None
    table = with_quotes(table, lambda word, more: (f'\\"{word}\\"', f'{word}{was} \\"{more}\\"'),
                        chance)
    return table and written(table, was, lambda value, is_text: is_text)


def escaped_delimiters(table, was, chance):
    """Backslashes before the delimiters in values, no quotes."""
    if any("\\" in value or was in value for value in table.values()):
        return None
    changed = with_quotes(table, lambda word, more: (f"{word}\\{was} {more}",
                                                    f"{word}\\{was}{more}"), chance)
    if not changed:
        return None
    lines = [was.join(row) for row in changed.rows()]
    return lines, label("delimited", table, delimiter=mark_of(was))


def bordered(kind):
    def cut(table, _, chance):
        table = table.narrow(160)
        if table.width < 2 or not table.names:
            return None
        bar = "\u2502" if kind == "box" else "|"
        if any(bar in value for value in table.values()):
            return None
        numbers = table.is_number()
        widths = [max(3, *map(cells, column)) for column in zip(*table.rows())]
        if kind == "markdown" and chance.random() < 0.3:
            widths = [3] * table.width
        inner = [bar.join(" " + pad(v, w, n and row is not table.names) + " "
                          for v, w, n in zip(row, widths, numbers)) for row in table.rows()]
        lines, header = BORDERS[kind](inner, widths, len(table.records), chance)
        return lines, label("delimited", table, header, delimiter=bar)
    return cut


def markdown(inner, widths, _, chance):
    ends = [("-", "-"), (":", "-"), ("-", ":")]
    ruler = []
    for width in widths:
        left, right = chance.choice(ends) if chance.random() < 0.5 else ends[0]
        ruler.append(" " + left + "-" * (width - 2) + right + " ")
    joint = chance.choice("|||+")
    lines = inner[:1] + [joint.join(ruler)] + inner[1:]
    return [f"|{line}|" for line in lines], 2


def psql(inner, widths, count, chance):
    ruler = "+".join("-" * (width + 2) for width in widths)
    end = [f"({count} rows)"] if chance.random() < 0.6 else []
    return [line.rstrip() for line in inner[:1] + [ruler] + inner[1:]] + end, 2


def grid(inner, widths, _, chance):
    """Rulers of +---+ around, below the names, and sometimes below each record."""
    ruler = "+" + "+".join("-" * (width + 2) for width in widths) + "+"
    lines = [f"|{line}|" for line in inner]
    if chance.random() < 0.25:
        return [ruler] + [part for line in lines for part in (line, ruler)], 3
    return [ruler, lines[0], ruler] + lines[1:] + [ruler], 3


def box(inner, widths, _, chance):
    rulers = [left + middle.join("\u2500" * (width + 2) for width in widths) + right
              for left, middle, right in ("\u250c\u252c\u2510", "\u251c\u253c\u2524",
                                          "\u2514\u2534\u2518")]
    lines = [f"\u2502{line}\u2502" for line in inner]
    return [rulers[0], lines[0], rulers[1]] + lines[1:] + [rulers[2]], 3


BORDERS = {"markdown": markdown, "psql": psql, "grid": grid, "box": box}


# With each variant how many files of it are made at most.
VARIANTS = {
    "blanks_behind": (blanks_behind, 90),
    "blanks_before_quotes": (blanks_before_quotes, 90), "quoted": (quoted, 90),
    "doubled_quotes": (doubled_quotes, 90), "escaped_quotes": (escaped_quotes, 60),
    "escaped_delimiters": (escaped_delimiters, 60), "decimal_commas": (decimal_commas, 90),
    "tabs": (by("\t"), 90), "bars": (by("|"), 60), "semicolons": (by(";"), 60),
    "several_characters": (by_several, 60), "wide_delimiters": (by_wide, 30),
    "thorns": (by_thorns, 20),
    "markdown": (bordered("markdown"), 45), "psql": (bordered("psql"), 45),
    "grid": (bordered("grid"), 45), "box": (bordered("box"), 30),
}
