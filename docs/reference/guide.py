#!/usr/bin/env python3
"""Puts the regions of the guide's programs, and what they print, into the guide.

    guide.py [--check] PAGE EXAMPLES      --check: fails where the page and the programs differ, writes nothing

A block of code in the page stands under a comment that names its source: `<!-- record.c: build -->` for a region,
`<!-- nest.cpp -->` for a whole file. A block of C, C++ or text without one is an error.
"""

import difflib
import pathlib
import re
import sys

import regions

BLOCK = re.compile(r"(?:<!-- (?P<file>[\w.]+)(?:: (?P<region>\w+))? -->\n)?"
                   r"```(?P<language>\w*)\n(?P<body>.*?)```\n", re.S)
LANGUAGES = {".c": "c", ".h": "c", ".cpp": "cpp", ".txt": "text"}


def filled(match, examples):
    if not match["file"]:
        if match["language"] in LANGUAGES.values() or not match["language"]:
            sys.exit(f"a block names no source of its text:\n{match[0]}")
        return match[0]
    path = examples / match["file"]
    lines = regions.lines(path, match["region"])
    mark = match[0][: match[0].index("```")]
    return mark + "\n".join([f"```{LANGUAGES[path.suffix]}"] + lines + ["```"]) + "\n"


def main(arguments):
    check = "--check" in arguments
    page, examples = (pathlib.Path(a) for a in arguments if a != "--check")
    old = page.read_text()
    new = BLOCK.sub(lambda match: filled(match, examples), old)
    unused = sorted(p.name for p in examples.iterdir()
                    if p.suffix in LANGUAGES and f"<!-- {p.name}" not in new and p.name != "CMakeLists.txt")
    if unused:
        sys.exit(f"{page} shows nothing of: {' '.join(unused)}")
    if old == new:
        return
    if check:
        lines = difflib.unified_diff(old.splitlines(True), new.splitlines(True), str(page), "the programs")
        sys.stdout.writelines(lines)
        sys.exit(f"{page} is not what the programs say: run scripts/guide")
    page.write_text(new)
    print(f"written: {page}")


main(sys.argv[1:])
