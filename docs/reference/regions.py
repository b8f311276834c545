"""Regions of the guide's programs: what stands between a line `// [NAME]` and the next such line of the same name."""

import re
import textwrap


def lines(path, name):
    """A region, or without a name the whole file."""
    return region(path, name) if name else path.read_text().rstrip("\n").split("\n")


def region(path, name):
    lines = path.read_text().split("\n")
    marks = [i for i, line in enumerate(lines) if re.fullmatch(rf"\s*// \[{re.escape(name)}\]", line)]
    if len(marks) != 2:
        raise SystemExit(f"{path}: the region [{name}] has {len(marks)} marks, not two")
    inner = [line for line in lines[marks[0] + 1: marks[1]] if not re.fullmatch(r"\s*// \[\w+\]", line)]
    return textwrap.dedent("\n".join(inner)).split("\n")
