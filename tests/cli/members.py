#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Shows the named members of the JSON object at its input, or the names of all of them, with the
names in an object, or in the first one of a list of objects, below.

Usage: members.py [PATH...]
A path is a name, or names apart by full stops; it begins at the object or at its member `format`.
A name that ends with [] stands for a list, and what follows is shown of each of its objects.
"""

import json
import sys


def show_names(value, indent):
    for name, member in value.items():
        print(indent + name)
        first = member[0] if isinstance(member, list) and member else member
        if isinstance(first, dict):
            show_names(first, indent + "  ")


def member(value, names):
    if not names or value is None:
        return value
    name, *rest = names
    if name.endswith("[]"):
        return [member(item, rest) for item in value[name[:-2]]]
    return member(value.get(name), rest)


def found(answer, path):
    names = path.split(".")
    begins_here = names[0].removesuffix("[]") in answer
    return member(answer if begins_here else answer.get("format", {}), names)


text = json.load(sys.stdin)
if len(sys.argv) > 1:
    shown = {path: found(text, path) for path in sys.argv[1:]}
    print(json.dumps(shown, ensure_ascii=False))
else:
    show_names(text, "")
