#!/usr/bin/env python3
"""What Doxygen reads in place of a public header: the same declarations under comments in Doxygen's own notation.

    doxygen_filter.py HEADER

A C header is written anew from what headers.py reads in it, in the groups of pages.py. Of a C++ header the comments
before declarations, and after them on their lines, become documentation. Pages of docs/ get anchors.
"""

import pathlib
import re
import sys

import headers
import pages


def escaped(text):
    """Prose: marks of Doxygen, Markdown and HTML stand for themselves, but for what `...` encloses."""
    parts = text.split("`")
    parts[::2] = [re.sub(r"([\\@<>#*&])", r"\\\1", part) for part in parts[::2]]
    return "`".join(parts)


class Writer:
    def __init__(self, known):
        self.lines = []
        self.known = known

    def words(self, text):
        text = escaped(text)
        text = re.sub(r"\bAAA_[A-Z0-9_]+\b", lambda m: "#" + m[0] if m[0] in self.known else m[0], text)
        return re.sub(r"\b[a-z]\w*_\w+\b(?![.(])", lambda m: m[0] + "()" if m[0] in self.known else m[0], text)

    def blocks(self, prose):
        for block in prose:
            if isinstance(block, tuple):
                self.lines += ["@code", *block, "@endcode", ""]
            elif isinstance(block, list):
                self.lines += ["- " + self.words(point) for point in block] + [""]
            else:
                self.lines += [self.words(block), ""]

    def clauses(self, header, section, item, function):
        for param in function.params:
            text = headers.param_text(header, section, item, param.name)
            self.lines.append(f"@param {param.name} {self.words(headers.sentence(text))}")
        if function.returns_code:
            codes = headers.codes_of(section, item, function)
            elsewhere = " ".join(headers.sentence(text) for code, text in codes if not code)
            self.lines.append("@return 0 on success. " + self.words(elsewhere))
            for code in dict.fromkeys(code for code, _ in codes if code):
                reasons = " ".join(headers.sentence(text) for other, text in codes if other == code)
                self.lines.append(f"@retval {code} {self.words(reasons)}")
        elif item.comment.returns:
            self.lines.append("@return " + self.words(item.comment.returns.removeprefix("Returns ")))
        owner = headers.owner_of(section, item) if function.hands_out or item.comment.owner else ""
        if owner:
            self.lines += ["@par Owner", self.words(headers.sentence(owner))]

    def item(self, header, section, item):
        for function in item.functions:
            self.lines.append("/**")
            self.blocks(item.comment.prose or [item.comment.returns])
            self.clauses(header, section, item, function)
            self.lines += ["*/", function.declaration]
        if item.functions:
            return
        if item.comment.prose or item.trailing:
            self.lines.append("/**")
            self.blocks(item.comment.prose)
            self.lines += [self.words(headers.sentence(item.trailing)) if item.trailing else "", "*/"]
        code = item.code.replace("AAA_API ", "").replace("AAA_PACKED ", "")
        if item.kind == "macro":
            code = code.split("/*")[0]
        else:
            code = re.sub(r"#ifdef __cplusplus\n.*?#endif\n", "", code, flags=re.S)
            code = re.sub(r"([;,{}\w]\s*)/\* (.*?) ?\*/", lambda m: m[1] + "/**< " + self.words(m[2]) + " */", code,
                          flags=re.S)
        self.lines.append(code)

    def section(self, header, section, named):
        if named and section.title:
            self.lines += ["/** @name " + section.title, ""]
            self.blocks(section.comment.prose)
            self.lines += ["*/", "/** @{ */"]
        for item in section.items:
            self.item(header, section, item)
        for name, of_type in section.tables:
            words = f"Value names of the type {self.words(of_type)}"
            self.lines += [f"/** {words}. */", f"extern const char *const name_{name}[];",
                           f"/** {words}, and how many there are. */",
                           f"extern const aaa_attr_value_table value_{name};"]
        if named and section.title:
            self.lines.append("/** @} */")

    def page(self, header, page):
        sections = [s for s in header.sections if not page.sections or s.title in page.sections]
        self.lines += [f"/** @defgroup {page.name} {page.name}: {page.brief}", ""]
        if headers.is_lead(header, page):
            self.blocks(header.comment.prose)
        named = [section for section in sections if section.title]
        if len(named) == 1:
            self.blocks(named[0].comment.prose)
        self.lines += ["@{ */"]
        for section in sections:
            self.section(header, section, len(named) > 1)
        self.lines.append("/** @} */")

    def header(self, header):
        self.lines += ["/** @file", ""]
        self.blocks(header.comment.prose)
        self.lines.append("*/")
        for page in pages.PAGES:
            if page.header == header.name:
                self.page(header, page)


def c_header(path):
    known = {f.name for h in headers.read_all(path.parent).values() for f in h.functions()}
    known |= {i.name for h in headers.read_all(path.parent).values() for s in h.sections for i in s.items
              if i.kind == "macro"}
    writer = Writer(known)
    if path.name in headers.OTHER:
        writer.lines.append("/** @file")
        writer.blocks(headers.opening_comment(path).prose)
        writer.lines.append("*/")
        text = path.read_text().replace("AAA_ATTR_UINT32 {", "{")
        text = text[text.index("*/") + 2:]
        writer.lines.append(re.sub(r"([;,]\s*)/\* (.*?) \*/$", r"\1/**< \2 */", text, flags=re.M))
    else:
        writer.header(headers.read(path))
    return writer.lines


def cpp_header(path):
    # Specialisations of standard templates stand after the namespace; they have nothing to show.
    text, end, _ = path.read_text().rpartition("\n}  // namespace attrmgr\n")
    lines = (text + end if end else path.read_text()).split("\n")
    out, at = [], 0
    shared, ended = [], False  # a comment holds for all declarations to the next empty line
    while at < len(lines):
        indent = re.match(r"\s*", lines[at])[0]
        if not lines[at].startswith(indent + "//"):
            if not lines[at]:
                shared = []
            if shared and shared[0].startswith(indent + "/**"):
                if ended and lines[at].strip() not in ("}", "};"):
                    out += shared
                ended = lines[at].endswith((";", "}"))
            out.append(re.sub(r"^(.*[;,{]\s+)// (.*)$", lambda m: m[1] + "///< " + escaped(m[2]), lines[at])
                       if not lines[at].startswith("#include") else lines[at])
            at += 1
            continue
        block = []
        while at < len(lines) and lines[at].startswith(indent + "//"):
            block.append(lines[at][len(indent) + 2:].removeprefix(" "))
            at += 1
        is_top = not out
        documents = at < len(lines) and lines[at].strip() not in ("", "}", "#pragma once") and \
            not block[0].startswith("----")
        if not is_top and not documents:
            continue
        comment = headers.parse_comment(block, set())
        writer = Writer(set())
        writer.blocks(comment.prose)
        shared, ended = [indent + "/**" + (" @file" if is_top else ""), *writer.lines, indent + "*/"], False
        out += shared
    return out


def page(path):
    """A page of docs/: its headings as anchors, which Doxygen does not make; links to what is no part of the HTML as
    plain words."""
    text = path.read_text()
    anchors = set()

    def heading(match):
        slug = re.sub(r"[^\w -]", "", match[2].lower()).replace(" ", "-")
        anchors.add(slug)
        return f"{match[1]} {match[2]} {{#{path.stem}-{slug}}}"

    text = re.sub(r"^(##+) (?!<)(.*)$", heading, text, flags=re.M)
    text = re.sub(r"^# (.*)$", rf"# \1 {{#{path.stem}}}", text, count=1, flags=re.M)
    text = re.sub(r"\]\(#([\w-]+)\)", lambda m: f"](#{path.stem}-{m[1]})" if m[1] in anchors else m[0], text)
    text = re.sub(r"\[([^]]*)\]\((?:\.\./aaa/[^)]*|\.\./examples/[^)]*|(?:index|text-format)\.md[^)]*)\)", r"\1", text)
    # Doxygen would look for the file that is linked to by its path, which may have spaces in it.
    text = re.sub(r"\[([^]]*)\]\((?:\.\./)?(\w+)\.md(?:#([\w-]+))?\)",
                  lambda m: f'@ref {m[2]}{"-" + m[3] if m[3] else ""} "{m[1]}"', text)
    return text.split("\n")


def main(path):
    path = pathlib.Path(path)
    kinds = {".h": c_header, ".hpp": cpp_header, ".md": page}
    print("\n".join(kinds[path.suffix](path)))


main(sys.argv[1])
