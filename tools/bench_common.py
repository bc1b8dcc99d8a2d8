# SPDX-License-Identifier: MIT
"""What tools/bench and tools/compare share: building the release programs, and tables."""
import os
import subprocess
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent


def build(target):
    """Builds a target of the release preset; returns the folder that the benchmarks are in.

    TFD_BENCH_BUILD names a build folder that is configured already, in place of the preset's.
    """
    folder = Path(os.environ.get("TFD_BENCH_BUILD", ROOT / "build" / "release"))
    steps = [["cmake", "--build", str(folder), "--target", target]]
    if "TFD_BENCH_BUILD" not in os.environ:
        steps.insert(0, ["cmake", "--preset", "release"])
    for step in steps:
        done = subprocess.run(step, cwd=ROOT, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                              text=True)
        if done.returncode != 0:
            sys.exit(f"{done.stdout}\n{' '.join(step)} failed; is libbenchmark-dev installed? "
                     "(tools/setup bench)")
    return folder / "benchmarks"


def percentile(ordered, percent):
    """Of an ordered list that is not empty: the first value that `percent` of them do not exceed."""
    return ordered[max(0, -(-len(ordered) * percent // 100) - 1)]


def format_table(head, rows):
    """A table in Markdown; all but the first column are aligned to the right."""
    widths = [max(len(row[i]) for row in [head, *rows]) for i in range(len(head))]

    def line(cells):
        padded = [cells[0].ljust(widths[0])]
        padded += [cell.rjust(width) for cell, width in zip(cells[1:], widths[1:])]
        return "| " + " | ".join(padded) + " |"

    rule = ["-" * widths[0]] + ["-" * (width - 1) + ":" for width in widths[1:]]
    return "\n".join(line(cells) for cells in [head, rule, *rows])
