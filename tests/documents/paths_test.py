#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""The files that the documents name are there.

A path is a word between backquotes with a slash or with the suffix of a file, such as `reading/` or
`weighing_internal.cpp`. It may leave out the folders in front; {hpp,cpp} stands for both, and NAME
and * for anything. Blocks of code are not looked at.
"""

import fnmatch
import os
import re
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
SKIPPED = {".git", "build", "node_modules"}
SUFFIXES = "cpp hpp in json js map md preset py R sh svg toml tsv txt".split()

# What the documents name and the tree does not hold: what is built, what the system has, and the
# end of a name.
ELSEWHERE = ["build/*", "/bin/true", "_internal.hpp"]


def files_below(root):
    """The files and folders, each from the root with a slash in front; folders end in one."""
    found = []
    for folder, names, files in os.walk(root):
        names[:] = sorted(set(names) - SKIPPED)
        here = "/" + Path(folder).relative_to(root).as_posix() + "/"
        here = here.replace("/./", "/")
        found += [here, *(here + name for name in files)]
    return found


def paths_in(text):
    """The paths that a document names, each once."""
    text = re.sub(r"^```.*?^```", "", text, flags=re.DOTALL | re.MULTILINE)
    words = [word for code in re.findall(r"`([^`]+)`", text) for word in code.split()]
    is_path = re.compile(rf"[\w.*{{}},/-]*[\w*](/[\w.*{{}},/-]*|\.({'|'.join(SUFFIXES)}|\{{.*\}}))")
    return sorted({word for word in words if is_path.fullmatch(word)})


def expanded(path):
    """The path once for each word in its braces."""
    braces = re.search(r"\{([^}]*)\}", path)
    if not braces:
        return [path]
    front, behind = path[: braces.start()], path[braces.end() :]
    return [one for word in braces[1].split(",") for one in expanded(front + word + behind)]


def is_there(path, files):
    pattern = re.escape(path.replace("NAME", "*")).replace(r"\*", ".*")
    return re.search(rf"/{pattern}/?$", "\n".join(files), re.MULTILINE) is not None


def missing_in(text, files):
    """The paths in a document that lead to no file and no folder."""
    paths = [path for word in paths_in(text) for path in expanded(word)]
    return [path for path in paths if not is_there(path, files) and
            not any(fnmatch.fnmatchcase(path, known) for known in ELSEWHERE)]


class Paths(unittest.TestCase):
    def test_what_is_not_there_is_found(self):
        files = ["/", "/docs/", "/tools/lint", "/lib/", "/lib/reading/", "/lib/reading/scan.cpp"]
        for there in ["`lib/reading/scan.cpp`", "`reading/scan.cpp`", "`scan.cpp`", "`reading/`",
                      "`lib/reading`", "`lib/NAME/scan.cpp`", "`*.cpp`", "`tools/lint --changed`",
                      "lib/none.cpp", "`none`", "`--none`", "```\n`lib/none.cpp`\n```",
                      "`build/x.txt`"]:
            self.assertEqual(missing_in(there, files), [], there)
        for text, missing in [
                ("`lib/reading/none.cpp`", "lib/reading/none.cpp"), ("`none.cpp`", "none.cpp"),
                ("`ing/scan.cpp`", "ing/scan.cpp"), ("`docs/scan.cpp`", "docs/scan.cpp"),
                ("`writing/`", "writing/"), ("`tools/none --changed`", "tools/none"),
                ("`scan.{cpp,hpp}`", "scan.hpp"), ("`lib/NAME/none.cpp`", "lib/NAME/none.cpp"),
                ("`*.hpp`", "*.hpp"), ("`a\nlib/none.cpp`", "lib/none.cpp"),
                ("`docs/a.md` `lib/`", "docs/a.md")]:
            self.assertEqual(missing_in(text, files), [missing], text)

    def test_documents_name_what_is_there(self):
        files = files_below(ROOT)
        documents = [file for file in files if file.endswith(".md")]
        self.assertGreater(len(documents), 5)
        for document in documents:
            text = Path(str(ROOT) + document).read_text(encoding="utf-8")
            self.assertEqual(missing_in(text, files), [], document)


if __name__ == "__main__":
    unittest.main()
