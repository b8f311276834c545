#!/usr/bin/env python3
"""Fails with a sentence for each link of a page that leads nowhere, for each file that it names and that is not there, and
for each page that the index.md beside it does not lead to.

    links.py PAGE...      pages of the repository, from its top folder
"""

import pathlib
import re
import sys

LINK = re.compile(r"\]\(([^)\s]+)\)")
NAMED = re.compile(r"`((?:scripts|docs|examples|tests|fuzz|debug|checked|bench|packaging|aaa|\.ci)/[\w./-]*)`")


def anchors(text):
    """What a page can be entered at: its headings, as they are made into anchors, and its own marks."""
    text = re.sub(r"```.*?```", "", text, flags=re.S)
    headings = [re.sub(r"<[^>]*>|`", "", h).strip() for h in re.findall(r"^#+ (.*)$", text, re.M)]
    slugs = {re.sub(r"[^\w -]", "", h.lower()).replace(" ", "-") for h in headings}
    return slugs | set(re.findall(r'<a id="([^"]+)"', text))


def complaints(page):
    text = page.read_text()
    for link in LINK.findall(re.sub(r"```.*?```", "", text, flags=re.S)):
        if re.match(r"[a-z]+:", link):
            continue
        path, _, anchor = link.partition("#")
        target = page.parent / path if path else page
        if not target.exists():
            yield f"links to {link}, which is not there"
        elif anchor and target.suffix == ".md" and anchor not in anchors(target.read_text()):
            yield f"links to {link}, a heading that {target} does not have"
    if page.name == "index.md":
        for other in sorted(page.parent.glob("*.md")):
            if f"]({other.name}" not in text and other != page:
                yield f"does not lead to {other.name}"
    for name in NAMED.findall(text):
        if not any((folder / name).exists() for folder in (pathlib.Path("."), *page.parents)):
            yield f"names {name}, which is not there"


def main(pages):
    found = [f"{page} {complaint}" for page in map(pathlib.Path, pages) for complaint in complaints(page)]
    if found:
        sys.exit("\n".join(found))
    print(f"{len(pages)} pages lead to what is there")


main(sys.argv[1:])
