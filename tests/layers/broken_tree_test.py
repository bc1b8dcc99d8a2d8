#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Shows that tools/check_layers.py accepts the sound tree in sound_tree.txt, and finds each way to
break it in broken_trees.tsv."""

import re
import subprocess
import sys
import tempfile
from pathlib import Path

HERE = Path(__file__).resolve().parent
CHECK = HERE.parents[1] / "tools" / "check_layers.py"


def run(files):
    """The exit code and output of the check on a tree of files."""
    with tempfile.TemporaryDirectory() as root:
        for name, text in files.items():
            path = Path(root, name)
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(text, encoding="utf-8")
        done = subprocess.run(
            [sys.executable, CHECK, root], capture_output=True, text=True, check=False
        )
    return done.returncode, done.stdout + done.stderr


def main():
    text = (HERE / "sound_tree.txt").read_text(encoding="utf-8")
    sound = dict(re.findall(r"^== (.*)\n((?:(?!== ).*\n)*)", text, re.M))
    rows = [line.split("\t") for line in (HERE / "broken_trees.tsv").read_text().splitlines()[1:]]
    cases = [(sound, 0, ""), ({}, 2, "")]
    cases += [({**sound, name: text}, 1, expected) for name, text, expected in rows]
    failures = 0
    for number, (files, expected_code, expected) in enumerate(cases):
        code, output = run(files)
        if code != expected_code or expected not in output:
            failures += 1
            print(f"tree {number}: {expected!r} not found, exit code {code}:\n{output}")
    print(f"{len(cases)} trees")
    return 1 if failures or len(rows) < 10 else 0


if __name__ == "__main__":
    sys.exit(main())
