#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Checks how the source files hang together, by reading their includes and the CMake lists.

- A file includes only files of its own folder and of folders below it in LAYERS.
- No header includes itself over a detour.
- Each header is either in its library's public list or named _internal.hpp, never both; a public
  header includes no internal one; each library's umbrella header includes all the others.
- Each source and each test is in the list of its CMakeLists.txt, and each listed file exists.

Usage: check_layers.py [ROOT]. Prints one line for each fault; exit code 1 if there is any, 2 if
there is nothing to check.
"""

import re
import sys
from pathlib import Path

# From the bottom up. What stands in no layer (OUTSIDE) may include everything.
LIBRARY = "text_format_detection"
LAYERS = [
    LIBRARY,  # only the files directly in the folder: export and version
    f"{LIBRARY}/model",
    f"{LIBRARY}/platform",
    f"{LIBRARY}/reading",
    f"{LIBRARY}/strategies",
    f"{LIBRARY}/detection",
    "text_import",
    "cli",
]

# A strategy asks for its header lines. That header includes the standard library only, so no
# cycle of files can come from it.
EXCEPTION = (f"{LIBRARY}/strategies", f"{LIBRARY}/detection/header_lines.hpp")

# Generated into the build folder, and the one file above all layers of its library.
GENERATED = {f"{LIBRARY}/version.hpp"}
UMBRELLA = f"{LIBRARY}/{LIBRARY}.hpp"

PUBLIC_LISTS = {LIBRARY: "TFD_PUBLIC_HEADERS", "text_import": "TEXT_IMPORT_PUBLIC_HEADERS"}
SOURCE_FOLDERS = [LIBRARY, "text_import", "cli"]
OUTSIDE = ["tests", "examples", "benchmarks", "fuzz"]

INCLUDE = re.compile(r'^[ \t]*#[ \t]*include[ \t]*(["<])([^">]+)[">]', re.MULTILINE)


class Tree:
    """The files below a root by relative path, their includes, and the faults found so far."""

    def __init__(self, root):
        self.root = root
        self.faults = []
        self.includes = {}
        for folder in [*SOURCE_FOLDERS, *OUTSIDE]:
            for path in sorted((root / folder).rglob("*.?pp")):
                text = path.read_text(encoding="utf-8")
                self.includes[path.relative_to(root).as_posix()] = INCLUDE.findall(text)

    def fault(self, file, sentence):
        self.faults.append(f"{file}: {sentence}")

    def ours(self, file):
        """The files of this tree that `file` includes."""
        return [name for _, name in self.includes[file] if name.split("/")[0] in SOURCE_FOLDERS]


def layer_of(file):
    """The position of the file's folder in LAYERS, or None for a file outside of them."""
    if file == UMBRELLA:
        return LAYERS.index(f"{LIBRARY}/detection")
    if file.count("/") == 1 and file.startswith(f"{LIBRARY}/"):
        return 0
    for position, folder in enumerate(LAYERS[1:], start=1):
        if file.startswith(f"{folder}/"):
            return position
    return None


def check_includes(tree):
    for file in tree.includes:
        if file.startswith(f"{LIBRARY}/") and layer_of(file) is None:
            tree.fault(file, "lies in no known folder of the library")
        for quote, name in tree.includes[file]:
            first = name.split("/")[0]
            if quote == '"' and first not in [*SOURCE_FOLDERS, *OUTSIDE]:
                tree.fault(file, f'"{name}" is no path from the root of the repository')
            elif first in SOURCE_FOLDERS and name not in tree.includes and name not in GENERATED:
                tree.fault(file, f"includes {name}, which does not exist")
            elif first in SOURCE_FOLDERS:
                check_order(tree, file, name)


def check_order(tree, file, name):
    own, other = layer_of(file), layer_of(name)
    if own is None or other is None:
        return
    if other > own and (LAYERS[own], name) != EXCEPTION:
        tree.fault(file, f"may not include {name}, which stands above it")


def check_exception(tree):
    header = EXCEPTION[1]
    allowed = {f"{LIBRARY}/export.hpp"}
    for name in tree.ours(header) if header in tree.includes else []:
        if name not in allowed:
            tree.fault(header, f"may include the standard library only, not {name}")


def check_cycles(tree):
    done, path = set(), []

    def visit(file):
        if file in path:
            chain = " -> ".join([*path[path.index(file) :], file])
            tree.fault(file, f"includes itself: {chain}")
            return
        if file in done or file not in tree.includes:
            return
        path.append(file)
        for name in tree.ours(file):
            visit(name)
        path.pop()
        done.add(file)

    for file in tree.includes:
        visit(file)


def listed_files(tree, folder):
    """By name, the set(...) lists of the CMakeLists.txt of the folder and those below it, as paths
    from the root."""
    found = {}
    for path in sorted((tree.root / folder).rglob("CMakeLists.txt")):
        text = re.sub(r"#.*", "", path.read_text(encoding="utf-8"))
        here = path.parent.relative_to(tree.root).as_posix()
        for name, files in re.findall(r"\bset\(\s*(\w+)\s+([^)]*)\)", text):
            found[name] = [f"{here}/{file}" for file in files.split()]
    return found


def check_public_list(tree, folder, public):
    headers = [f for f in tree.includes if f.startswith(folder + "/") and f.endswith(".hpp")]
    for header in headers:
        if header.endswith("_internal.hpp") == (header in public):
            tree.fault(header, f"is not in {PUBLIC_LISTS[folder]}, or is internal by its name")
        for name in tree.ours(header):
            if header in public and name.endswith("_internal.hpp"):
                tree.fault(header, f"is public and may not include {name}")
    for header in public:
        if header not in headers:
            tree.fault(header, f"is in {PUBLIC_LISTS[folder]} but does not exist")
    umbrella = f"{folder}/{folder}.hpp"
    if umbrella in public:
        for header in (set(public) | GENERATED) - {umbrella} - set(tree.ours(umbrella)):
            tree.fault(umbrella, f"does not include {header}")


def check_sources(tree, folder, listed, pattern):
    there = {p.relative_to(tree.root).as_posix() for p in (tree.root / folder).rglob(pattern)}
    for file in sorted(there - listed):
        tree.fault(file, f"is in no list of {folder}/CMakeLists.txt")
    for file in sorted(f for f in listed if f.endswith(".cpp")):
        if not (tree.root / file).is_file():
            tree.fault(file, f"is in a list of {folder}/CMakeLists.txt but does not exist")


def check_lists(tree):
    for folder, pattern in [*((f, "*.cpp") for f in SOURCE_FOLDERS), ("tests", "*_test.cpp")]:
        lists = listed_files(tree, folder)
        if folder in PUBLIC_LISTS:
            check_public_list(tree, folder, lists.get(PUBLIC_LISTS[folder], []))
        check_sources(tree, folder, {f for files in lists.values() for f in files}, pattern)


def main(arguments):
    root = Path(arguments[0] if arguments else Path(__file__).parent.parent).resolve()
    tree = Tree(root)
    if not tree.includes:
        print(f"check_layers: no source files below {root}", file=sys.stderr)
        return 2
    for check in [check_includes, check_exception, check_cycles, check_lists]:
        check(tree)
    for fault in sorted(set(tree.faults)):
        print(fault)
    print(f"check_layers: {len(tree.includes)} files, {len(set(tree.faults))} faults")
    return 1 if tree.faults else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
