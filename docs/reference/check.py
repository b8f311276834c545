#!/usr/bin/env python3
"""Fails with a sentence for each exported function whose comment leaves something out.

    check.py SYMBOLS HEADERS...      SYMBOLS: the exported names, one a line; HEADERS: folders of public headers

Every function needs words of its own, a text for each parameter, what it returns (result codes, for functions that give
one), and an owner for each address or list that it hands out.
"""

import pathlib
import sys

import headers


def gaps(header, section, item, function):
    if not (item.comment.prose or item.comment.returns or item.comment.params):
        yield "has no comment"
    for param in function.params:
        if not headers.param_text(header, section, item, param.name):
            yield f"says nothing of its parameter '{param.name}'"
    if function.returns_code:
        if not headers.codes_of(section, item, function):
            yield "names no result code"
    elif function.returns != "void" and not item.comment.returns:
        yield "does not say what it returns ('Returns ...')"
    if function.hands_out and not headers.owner_of(section, item):
        yield "hands out an address or a list, and names no owner of it ('Owner: ...')"


def constant_gaps(section):
    """Constants without a comment at the line's end, above it, or above those that it follows."""
    shared = False
    for item in section.items:
        above = bool(item.comment.prose)
        shared = item.kind == "macro" and (above or (shared and not item.trailing))
        if item.kind == "macro" and not (item.trailing or shared):
            yield f"{item.name} has no comment"


def main(symbols_file, *folders):
    symbols = {line for line in pathlib.Path(symbols_file).read_text().split("\n") if line and line[0] != "#"}
    found, complaints = set(), []
    for folder in folders:
        for header in headers.read_all(folder).values():
            for section in header.sections:
                found |= {prefix + name for name, _ in section.tables for prefix in ("name_", "value_")}
                found |= {item.name for item in section.items if item.kind == "variable"}
                complaints += [f"{header.name}: {gap}" for gap in constant_gaps(section)]
                for item in section.items:
                    for function in item.functions:
                        found.add(function.name)
                        complaints += [f"{header.name}: {function.name} {gap}"
                                       for gap in gaps(header, section, item, function)]
    complaints += [f"{name} is exported, but no public header declares it" for name in sorted(symbols - found)]
    for complaint in complaints:
        print(complaint, file=sys.stderr)
    if complaints:
        sys.exit(f"{len(complaints)} gaps in the reference")
    print(f"Reference: {len(found)} exported names are documented, each parameter, code and owner")


main(*sys.argv[1:])
