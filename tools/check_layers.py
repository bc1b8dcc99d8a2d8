#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Checks how the source files hang together, by reading their includes and the CMake lists.

- A file includes only files of its own folder and of what FOLDERS allows that folder; folders are
  phases, so this forbids what would run backwards. Of the engine's internal headers the other
  folders include only SHARED_INTERNALS; nobody includes cli/ but tests and fuzz targets.
- No module (x.hpp and x.cpp taken as one) includes itself over a detour.
- Each header is either in its library's public list or named _internal.hpp, never both; a public
  header includes no internal one; each library's umbrella header includes all the others.
- Each source and each test is in the list of its CMakeLists.txt, and each listed file exists.

Usage: check_layers.py [ROOT]. Prints one line for each fault; exit code 1 if there is any, 2 if
there is nothing to check.
"""

import re
import sys
from pathlib import Path

ENGINE = "text_format_detection"
IMPORT = "text_import"
ANALYSIS = f"{IMPORT}/analysis"
SOURCE = f"{IMPORT}/source"

# The engine's folders from the bottom up: each may include those before it.
ENGINE_FOLDERS = ["model", "platform", "reading", "strategies", "detection"]

# What an opened text and its parts are made of.
UNDER_SOURCE = [
    f"{IMPORT}/*",
    f"{IMPORT}/format/",
    f"{ENGINE}/*",
    f"{ENGINE}/model/",
    f"{ENGINE}/platform/text_stream.hpp",
    f"{ENGINE}/platform/ascii_internal.hpp",
]
UNDER_SPLITTING = [f"{IMPORT}/*", f"{IMPORT}/format/", f"{ENGINE}/"]
UNDER_ANALYSIS = [*UNDER_SPLITTING, f"{IMPORT}/splitting/"]
UNDER_READINGS = [*UNDER_ANALYSIS, f"{ANALYSIS}/lines/", f"{ANALYSIS}/values/"]

# By folder what its files may include beside itself: "folder/" with all below it, "folder/*" for
# the files directly in it, or one file. A folder without a line of its own belongs to the one above
# it; one that stands in none is a fault.
FOLDERS = {
    ENGINE: [],  # export and version
    **{
        f"{ENGINE}/{folder}": [f"{ENGINE}/*", *(f"{ENGINE}/{f}/" for f in ENGINE_FOLDERS[:position])]
        for position, folder in enumerate(ENGINE_FOLDERS)
    },
    IMPORT: [],  # export and errors
    f"{IMPORT}/format": [f"{IMPORT}/*", f"{ENGINE}/export.hpp", f"{ENGINE}/model/enums.hpp"],
    f"{SOURCE}/bytes": UNDER_SOURCE,
    f"{SOURCE}/encoding": [*UNDER_SOURCE, f"{SOURCE}/bytes/"],
    f"{SOURCE}/compression": [*UNDER_SOURCE, f"{SOURCE}/bytes/", f"{SOURCE}/encoding/"],
    SOURCE: [*UNDER_SOURCE, f"{SOURCE}/"],
    f"{IMPORT}/splitting": UNDER_SPLITTING,
    f"{ANALYSIS}/lines": UNDER_ANALYSIS,
    f"{ANALYSIS}/values": UNDER_ANALYSIS,
    f"{ANALYSIS}/readings": UNDER_READINGS,
    f"{ANALYSIS}/weighing": [*UNDER_READINGS, f"{ANALYSIS}/readings/"],
    f"{ANALYSIS}/describing": [*UNDER_READINGS, f"{ANALYSIS}/readings/"],
    f"{ANALYSIS}/checking": [*UNDER_READINGS, f"{ANALYSIS}/readings/"],
    ANALYSIS: [*UNDER_ANALYSIS, f"{ANALYSIS}/"],
    # From a Format to the engine's options is one step for the analysis and for whole files.
    f"{IMPORT}/table": [*UNDER_READINGS, f"{ANALYSIS}/readings/reading_options.hpp", f"{SOURCE}/"],
    f"{IMPORT}/report": [*UNDER_ANALYSIS, f"{ANALYSIS}/", f"{IMPORT}/table/"],
    "cli": [f"{IMPORT}/", f"{ENGINE}/"],
}

# The strategies ask for their header lines. That header includes the standard library only, so no
# cycle of files can come from it.
EXCEPTION = (f"{ENGINE}/strategies", f"{ENGINE}/detection/header_lines.hpp")

# The engine's internal headers that the import library is built with, and why.
SHARED_INTERNALS = {
    f"{ENGINE}/model/unit_search_internal.hpp": "one vector search, compiled into both libraries",
    f"{ENGINE}/platform/ascii_internal.hpp": "what a digit is, without the locale",
    f"{ENGINE}/strategies/value_grammar_internal.hpp": "one grammar of values for both policies",
}

# Generated into the build folder, and the one file above all folders of its library.
GENERATED = {f"{ENGINE}/version.hpp"}
UMBRELLA = f"{ENGINE}/{ENGINE}.hpp"

PUBLIC_LISTS = {ENGINE: "TFD_PUBLIC_HEADERS", IMPORT: "TEXT_IMPORT_PUBLIC_HEADERS"}
SOURCE_FOLDERS = [ENGINE, IMPORT, "cli"]
OUTSIDE = ["tests", "examples", "benchmarks", "fuzz"]
MAY_INCLUDE_CLI = ["cli", "tests", "fuzz"]

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


def folder_of(file):
    """The folder in FOLDERS that the file belongs to, or None. Files directly in a library's root
    are a folder of their own; the umbrella header stands with the uppermost one."""
    if file == UMBRELLA:
        return f"{ENGINE}/{ENGINE_FOLDERS[-1]}"
    folder = file.rpartition("/")[0]
    if folder in (ENGINE, IMPORT):
        return folder
    while folder and folder not in FOLDERS:
        folder = folder.rpartition("/")[0]
    return None if folder in (ENGINE, IMPORT, "") else folder


def matches(name, pattern):
    if pattern.endswith("/*"):
        return name.rpartition("/")[0] == pattern[:-2] and name != UMBRELLA
    return name.startswith(pattern) if pattern.endswith("/") else name == pattern


def check_includes(tree):
    for file in tree.includes:
        if file.split("/")[0] in SOURCE_FOLDERS and folder_of(file) is None:
            tree.fault(file, "lies in no known folder of its library")
        for quote, name in tree.includes[file]:
            first = name.split("/")[0]
            if quote == '"' and first not in [*SOURCE_FOLDERS, *OUTSIDE]:
                tree.fault(file, f'"{name}" is no path from the root of the repository')
            elif first in SOURCE_FOLDERS and name not in tree.includes and name not in GENERATED:
                tree.fault(file, f"includes {name}, which does not exist")
            elif first in SOURCE_FOLDERS:
                check_order(tree, file, name)


def check_order(tree, file, name):
    root, own = file.split("/")[0], folder_of(file)
    if name.startswith("cli/") and root not in MAY_INCLUDE_CLI:
        tree.fault(file, f"may not include {name}: nobody includes cli/")
    elif own and folder_of(name) != own and (own, name) != EXCEPTION:
        if not any(matches(name, pattern) for pattern in FOLDERS[own]):
            tree.fault(file, f"may not include {name}: {own} stands beside it or below it")
        elif is_foreign_internal(root, name):
            tree.fault(file, f"may not include {name}, which is internal to the engine")


def is_foreign_internal(root, name):
    is_internal = name.startswith(f"{ENGINE}/") and name.endswith("_internal.hpp")
    return root != ENGINE and is_internal and not (root == IMPORT and name in SHARED_INTERNALS)


def check_exception(tree):
    header = EXCEPTION[1]
    allowed = {f"{ENGINE}/export.hpp"}
    for name in tree.ours(header) if header in tree.includes else []:
        if name not in allowed:
            tree.fault(header, f"may include the standard library only, not {name}")


def modules_of(tree):
    """By module (a path without its suffix) the modules that it includes."""
    modules = {}
    for file in tree.includes:
        if file.split("/")[0] in SOURCE_FOLDERS:
            module = file.rpartition(".")[0]
            others = {name.rpartition(".")[0] for name in tree.ours(file) if name in tree.includes}
            modules.setdefault(module, set()).update(others - {module})
    return modules


def check_circles(tree):
    modules = modules_of(tree)
    done, path = set(), []

    def visit(module):
        if module in path:
            circle = path[path.index(module) :]
            tree.fault(min(circle), f"is in a circle of modules: {' -> '.join([*circle, module])}")
        elif module not in done:
            path.append(module)
            for other in sorted(modules[module]):
                visit(other)
            path.pop()
            done.add(module)

    for module in sorted(modules):
        visit(module)


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
    for check in [check_includes, check_exception, check_circles, check_lists]:
        check(tree)
    for fault in sorted(set(tree.faults)):
        print(fault)
    print(f"check_layers: {len(tree.includes)} files, {len(set(tree.faults))} faults")
    return 1 if tree.faults else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
