#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Shows the named members of the JSON object at its input, or the names of all of them, with the
names in an object, or in the first one of a list of objects, below.

Usage: members.py [NAME...]
"""

import json
import sys


def show_names(value, indent):
    for name, member in value.items():
        print(indent + name)
        first = member[0] if isinstance(member, list) and member else member
        if isinstance(first, dict):
            show_names(first, indent + "  ")


answer = json.load(sys.stdin)
if len(sys.argv) > 1:
    print(json.dumps({name: answer.get(name) for name in sys.argv[1:]}, ensure_ascii=False))
else:
    show_names(answer, "")
