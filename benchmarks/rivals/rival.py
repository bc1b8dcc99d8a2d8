# SPDX-License-Identifier: MIT
"""Times one Python program's detection: rival.py NAME RUNS, paths on standard input.

Prints "version", a tab and the version; then, for each file, its path, a tab, and the median
milliseconds of RUNS calls (reading the file included) or the word "error". One pass over the first
files is for warming up. tools/compare starts it.
"""
import statistics
import sys
import time

# A call above this is not repeated.
SLOW_SECONDS = 0.5
WARM_UP_FILES = 20


def head(path, characters):
    with open(path, encoding="utf-8", newline="") as file:
        return file.read(characters)


def csv_sniffer():
    import csv
    return sys.version.split()[0], lambda path: csv.Sniffer().sniff(head(path, 6144))


def clevercsv():
    import clevercsv as module
    return module.__version__, lambda path: module.Sniffer().sniff(head(path, 10000))


def pandas():
    import warnings

    import pandas as module
    warnings.simplefilter("ignore")

    def sniff(path):
        # Finds the delimiter and the names, and reads no rows yet.
        module.read_csv(path, sep=None, engine="python", iterator=True).close()

    return module.__version__, sniff


def timed(call, path):
    start = time.perf_counter()
    call(path)
    return time.perf_counter() - start


def median_ms(call, path, runs):
    try:
        times = [timed(call, path)]
        while len(times) < runs and times[0] < SLOW_SECONDS:
            times.append(timed(call, path))
    except Exception:  # every library has errors of its own
        return "error"
    return f"{1000 * statistics.median(times):.6f}"


def main():
    name, runs = sys.argv[1], int(sys.argv[2])
    version, call = {"csv.Sniffer": csv_sniffer, "clevercsv": clevercsv, "pandas": pandas}[name]()
    paths = sys.stdin.read().splitlines()
    for path in paths[:WARM_UP_FILES]:
        median_ms(call, path, 1)
    print(f"version\t{version}")
    for path in paths:
        print(f"{path}\t{median_ms(call, path, runs)}", flush=True)


if __name__ == "__main__":
    main()
