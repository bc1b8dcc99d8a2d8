#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Shows that tools/check_layers.py accepts a sound tree and finds each way to break one."""

import subprocess
import sys
import tempfile
from pathlib import Path

CHECK = Path(__file__).resolve().parents[2] / "tools" / "check_layers.py"
LIBRARY = "text_format_detection"

SOUND = {
    f"{LIBRARY}/CMakeLists.txt": "set(TFD_PUBLIC_HEADERS text_format_detection.hpp model/a.hpp\n"
    "    strategies/s.hpp detection/header_lines.hpp)\nset(TFD_SOURCES strategies/s.cpp) # b.cpp",
    f"{LIBRARY}/{LIBRARY}.hpp": f'#include "{LIBRARY}/model/a.hpp"\n'
    f'#include "{LIBRARY}/strategies/s.hpp"\n#include "{LIBRARY}/detection/header_lines.hpp"\n'
    f'#include "{LIBRARY}/version.hpp"\n',
    f"{LIBRARY}/model/a.hpp": "#include <vector>\n",
    f"{LIBRARY}/strategies/s.hpp": f'#include "{LIBRARY}/model/a.hpp"\n',
    f"{LIBRARY}/strategies/s_internal.hpp": f'#include "{LIBRARY}/strategies/s.hpp"\n',
    f"{LIBRARY}/strategies/s.cpp": f'#include "{LIBRARY}/strategies/s_internal.hpp"\n'
    f'#include "{LIBRARY}/detection/header_lines.hpp"\n',
    f"{LIBRARY}/detection/header_lines.hpp": "#include <vector>\n",
    "text_import/CMakeLists.txt": "set(TEXT_IMPORT_PUBLIC_HEADERS i.hpp)",
    "text_import/i.hpp": f'#include "{LIBRARY}/{LIBRARY}.hpp"\n',
    "cli/CMakeLists.txt": "set(TFD_CLI_SOURCES main.cpp)",
    "cli/main.cpp": '#include "text_import/i.hpp"\n',
    "tests/CMakeLists.txt": "set(TFD_TEST_SOURCES model/a_test.cpp)",
    "tests/model/a_test.cpp": f'#include "{LIBRARY}/strategies/s_internal.hpp"\n',
}

# What is changed in the sound tree, and a part of the sentence that must come out.
BROKEN = [
    (f"{LIBRARY}/model/a.hpp", f'#include "{LIBRARY}/strategies/s.hpp"', "stands above"),
    (f"{LIBRARY}/model/a.hpp", f'  #  include <{LIBRARY}/strategies/s.hpp>', "includes itself"),
    (f"{LIBRARY}/model/a.hpp", '#include "text_import/i.hpp"', "stands above"),
    (f"{LIBRARY}/model/a.hpp", f'#include "{LIBRARY}/detection/header_lines.hpp"', "stands above"),
    ("text_import/i.hpp", '#include "cli/main.cpp"', "stands above"),
    (f"{LIBRARY}/detection/header_lines.hpp", f'#include "{LIBRARY}/model/a.hpp"', "library only"),
    (f"{LIBRARY}/strategies/s.hpp", f'#include "{LIBRARY}/strategies/s_internal.hpp"', "is public"),
    (f"{LIBRARY}/strategies/s.hpp", f'#include "{LIBRARY}/model/gone.hpp"', "does not exist"),
    (f"{LIBRARY}/strategies/s.hpp", '#include "s_internal.hpp"', "no path from the root"),
    (f"{LIBRARY}/model/b.hpp", "", "is not in TFD_PUBLIC_HEADERS"),
    (f"{LIBRARY}/model/b.cpp", "", "is in no list"),
    (f"{LIBRARY}/helpers/b.cpp", "", "no known folder"),
    (f"{LIBRARY}/{LIBRARY}.hpp", f'#include "{LIBRARY}/model/a.hpp"', "does not include"),
    ("text_import/CMakeLists.txt", "set(TEXT_IMPORT_PUBLIC_HEADERS i.hpp j.hpp)", "text_import/j.hpp: is in"),
    ("cli/CMakeLists.txt", "set(TFD_CLI_SOURCES main.cpp gone.cpp)", "cli/gone.cpp: is in"),
    ("tests/model/b_test.cpp", "", "is in no list"),
]


def run(changes):
    """The exit code and output of the check on the sound tree with some files replaced."""
    with tempfile.TemporaryDirectory() as root:
        for name, text in {**SOUND, **changes}.items():
            path = Path(root, name)
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(text, encoding="utf-8")
        done = subprocess.run(
            [sys.executable, CHECK, root], capture_output=True, text=True, check=False
        )
    return done.returncode, done.stdout + done.stderr


def main():
    failures = []
    code, output = run({})
    if code != 0:
        failures.append(f"the sound tree is refused:\n{output}")
    for name, text, expected in BROKEN:
        code, output = run({name: text})
        if code != 1 or expected not in output:
            failures.append(f"{name} with {text!r}: {expected!r} not found, exit {code}:\n{output}")
    with tempfile.TemporaryDirectory() as root:
        if subprocess.run([CHECK, root], capture_output=True, check=False).returncode != 2:
            failures.append("an empty folder is accepted")
    print("\n".join(failures) or f"{len(BROKEN)} broken trees found")
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
