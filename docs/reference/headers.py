"""Reads the public C headers: what they declare, and what their comments say of it.

The comments are the one source of the manual pages and of the HTML reference. In a comment, these begin a clause that
reaches to the next one or to the end of the paragraph; all else is prose.

    name: ...                  a parameter, at the beginning of a line
    name   ...                 the same as a row of a table; in the comment of a section or of a header it holds for all
                               functions of the section or the header that have a parameter of the name
    Returns ...                what the function returns, at the beginning of a line
    Owner: ...                 who owns what the function hands out, and until when
    AAA_ATTR_ERR_...: ...      a result code, and when it is given; in the comment of a section it holds for all its
                               functions that return a code
    Codes of ...               result codes that are described elsewhere
    Always 0.                  for a function that returns a code without a choice

`/* ---- Title ---- ... */` begins a section. Functions that stand without an empty line between them share the comment
above the first one.
"""

import dataclasses
import pathlib
import re

CODE_TYPE = "aaa_attr_cerrno"
OTHER = ("aaa_export.h", "attrmgr.h", "aaa_attr_names.h")  # headers without declarations to be read
HANDLE_TYPE = "aaa_attr_list_handle"


@dataclasses.dataclass
class Comment:
    """prose: paragraphs (str), bullets (list of str), code (tuple of lines)."""

    prose: list = dataclasses.field(default_factory=list)
    params: dict = dataclasses.field(default_factory=dict)
    returns: str = ""
    owner: str = ""
    codes: list = dataclasses.field(default_factory=list)  # (code or "", text)


@dataclasses.dataclass
class Param:
    name: str
    type: str

    @property
    def hands_out(self):
        """An address or a list comes out of it."""
        return self.type.count("*") > 1 or self.type == HANDLE_TYPE + " *"


@dataclasses.dataclass
class Function:
    name: str
    returns: str
    params: list
    declaration: str

    @property
    def returns_code(self):
        return self.returns == CODE_TYPE

    @property
    def hands_out(self):
        return "*" in self.returns or any(p.hands_out for p in self.params)


@dataclasses.dataclass
class Item:
    """What shares one comment: functions, or one macro, type or variable."""

    kind: str  # functions, macro, type, variable
    comment: Comment
    code: str
    name: str = ""
    functions: list = dataclasses.field(default_factory=list)
    trailing: str = ""  # the comment at the end of a macro's line


@dataclasses.dataclass
class Section:
    title: str
    comment: Comment
    items: list = dataclasses.field(default_factory=list)
    tables: list = dataclasses.field(default_factory=list)  # of value names: (name, the type that has them)

    def functions(self):
        return [f for item in self.items for f in item.functions]


@dataclasses.dataclass
class Header:
    name: str
    brief: str
    comment: Comment
    sections: list

    def functions(self):
        return [f for section in self.sections for f in section.functions()]

    def section(self, title):
        return next(s for s in self.sections if s.title == title)


# ---- Comments ----

CLAUSE = re.compile(
    r"(?:^|\n)(?P<param>[a-z]\w*)(?P<colon>:| {2,})\s*(?=\S)"
    r"|(?:^|\n)(?P<returns>Returns )"
    r"|(?:^|(?<=\s))(?P<owner>Owner: )"
    r"|(?:^|(?<=\s))(?P<code>AAA_ATTR_ERR_\w+): "
    r"|(?:^|(?<=\s))(?P<codes>Codes of |Always 0\.)"
)


def strip_comment(lines):
    """The text of a block comment, indented as it is to its readers."""
    text = "\n".join(lines).strip()
    text = text[len("/*"):-len("*/")]
    first, *rest = text.split("\n")
    return [first.strip()] + [re.sub(r"^ {1,3}", "", line).rstrip() for line in rest]


def paragraphs(lines):
    found, current = [], []
    for line in lines + [""]:
        if line:
            current.append(line)
        elif current:
            found.append(current)
            current = []
    return found


def joined(text):
    return re.sub(r"\s+", " ", text).strip()


def add_clauses(comment, text, names):
    """Splits a paragraph at its clauses. names: the parameters that may be meant."""
    marks = [m for m in CLAUSE.finditer(text) if not m["param"] or m["param"] in names]
    prose = joined(text[: marks[0].start()] if marks else text)
    if prose:
        comment.prose.append(prose)
    for mark, after in zip(marks, marks[1:] + [None]):
        body = joined(text[mark.end(): after.start() if after else len(text)])
        if mark["param"]:
            comment.params[mark["param"]] = body
        elif mark["returns"]:
            comment.returns = "Returns " + body
        elif mark["owner"]:
            comment.owner = body
        elif mark["code"]:
            comment.codes.append((mark["code"], body))
        else:
            comment.codes.append(("", joined(mark["codes"] + body)))


def parse_comment(lines, names):
    comment = Comment()
    for paragraph in paragraphs(lines):
        if paragraph[0].startswith("  "):
            indent = min(len(line) - len(line.lstrip()) for line in paragraph)
            comment.prose.append(tuple(line[indent:] for line in paragraph))
        elif any(line.startswith("- ") for line in paragraph):
            # Prose may lead to the points.
            first = next(i for i, line in enumerate(paragraph) if line.startswith("- "))
            add_clauses(comment, "\n".join(paragraph[:first]), names)
            points = re.split(r"(?:^|\n)- ", "\n".join(paragraph[first:]))
            comment.prose.append([joined(point) for point in points if point])
        else:
            add_clauses(comment, "\n".join(paragraph), names)
    return comment


# ---- Declarations ----


def parse_params(text):
    if text.strip() == "void":
        return []
    params = []
    for part in text.split(","):
        match = re.fullmatch(r"(.*?[ *])(\w+)", joined(part))
        params.append(Param(match[2], match[1].strip()))
    return params


def parse_function(code):
    # What compilers are told is of no interest to a reader.
    declaration = re.sub(r"\b(AAA_MUST_CHECK|AAA_API) | AAA_NOEXCEPT\b", "", joined(code))
    match = re.fullmatch(r"(.*?[ *])(\w+)\((.*)\);", declaration)
    return Function(match[2], match[1].strip(), parse_params(match[3]), declaration)


def name_of(code):
    for pattern in (r"#define (\w+)", r"typedef .*\(\*(\w+)\)", r"}\s*(\w+);", r"struct (\w+) {",
                    r"(\w+)(?:\[[^]]*\])?;\s*(?:/\*.*)?$"):
        match = re.search(pattern, code, re.S)
        if match:
            return match[1]
    raise ValueError(f"no name in: {code}")


class Reader:
    """Cuts a header into comments and declarations."""

    def __init__(self, path):
        self.lines = path.read_text().split("\n")
        self.at = 0

    def comment(self):
        start = self.at
        while "*/" not in self.lines[self.at]:
            self.at += 1
        self.at += 1
        return strip_comment(self.lines[start: self.at])

    def declaration(self):
        """To the semicolon outside of braces, or to the end of a macro."""
        start = self.at
        depth = 0
        is_macro = self.lines[start].startswith("#define")
        while True:
            line = self.lines[self.at]
            self.at += 1
            code = re.sub(r"/\*.*?\*/", "", line)
            depth += code.count("{") - code.count("}")
            if (is_macro and not line.endswith("\\")) or (not is_macro and depth == 0 and ";" in code):
                return "\n".join(self.lines[start: self.at])


def read_pieces(path):
    """(kind, lines or code), kind: comment, section, code, table, gap."""
    reader = Reader(path)
    while reader.at < len(reader.lines):
        line = reader.lines[reader.at]
        if line.startswith("/*"):
            lines = reader.comment()
            yield ("section" if lines[0].startswith("---- ") else "comment"), lines
        elif line.startswith("AAA_ATTR_VALUE_TABLE("):
            match = re.match(r"AAA_ATTR_VALUE_TABLE\((\w+)\);\s*/\* (.*) \*/", line)
            yield "table", (match[1], match[2])
            reader.at += 1
        elif re.match(r"#define (?!ATTRMGR_\w+_H$)|AAA_MUST_CHECK |AAA_API |extern AAA_API |typedef |struct ", line):
            yield "code", reader.declaration()
        else:
            reader.at += 1
            if not line.strip():
                yield "gap", ""


def open_section(lines):
    """The title of a section, and what its comment says after it."""
    text = "\n".join(lines)
    match = re.match(r"---- (.*?) ----\s*", text, re.S)
    return joined(match[1]), text[match.end():].split("\n")


def read(path):
    pieces = list(read_pieces(path))
    lines = pieces[0][1]
    brief = lines[0].split(": ", 1)[1]
    # The first sentence is what the header has; more may follow it on the line.
    header_lines, sections = lines, [("", [])]
    tables = []
    groups = []  # (section index, kind, comment lines, [code])
    pending, joining = None, False
    for kind, body in pieces[1:]:
        if kind == "section":
            sections.append(open_section(body))
            pending, joining = None, False
        elif kind == "comment":
            pending, joining = body, False
        elif kind == "table":
            tables.append(body)
        elif kind == "gap":
            pending, joining = None, False
        else:
            is_function = body.startswith(("AAA_MUST_CHECK", "AAA_API"))
            if joining and is_function:
                groups[-1][3].append(body)
            else:
                groups.append((len(sections) - 1, is_function, pending or [], [body]))
            joining = is_function
            pending = None

    functions = [[parse_function(c) for c in codes] if is_function else [] for _, is_function, _, codes in groups]
    all_names = {p.name for group in functions for f in group for p in f.params}
    text = "\n".join(header_lines).split(": ", 1)[1]
    header = Header(path.name, brief, parse_comment(text.split("\n"), all_names), [])
    for title, comment_lines in sections:
        header.sections.append(Section(title, parse_comment(comment_lines, all_names)))
    for (section, is_function, comment_lines, codes), parsed in zip(groups, functions):
        names = {p.name for f in parsed for p in f.params}
        comment = parse_comment(comment_lines, names)
        items = header.sections[section].items
        if is_function:
            items.append(Item("functions", comment, "\n".join(codes), functions=parsed))
            continue
        code = codes[0]
        kind = "macro" if code.startswith("#define") else "variable" if code.startswith("extern") else "type"
        trailing = re.search(r"/\*(.*)\*/\s*$", code) if kind == "macro" else None
        items.append(Item(kind, comment, code, name_of(code), trailing=joined(trailing[1]) if trailing else ""))
    header.sections[-1].tables = tables
    header.sections = [s for s in header.sections if s.items or s.title]
    return header


def read_all(folder):
    return {path.name: read(path) for path in sorted(pathlib.Path(folder).glob("*.h"))
            if path.name not in OTHER}


def opening_comment(path):
    """The comment at the top of any header, C or C++."""
    lines = path.read_text().split("\n")
    if lines[0].startswith("//"):
        end = next(i for i, line in enumerate(lines) if not line.startswith("//"))
        return parse_comment([line[2:].removeprefix(" ") for line in lines[:end]], set())
    end = next(i for i, line in enumerate(lines) if "*/" in line)
    return parse_comment(strip_comment(lines[: end + 1]), set())


def sentence(text):
    """What stands after "name:" as a sentence of its own. A name of the interface keeps its small letter."""
    text = text if re.match(r"[a-z]+_", text) else text[:1].upper() + text[1:]
    return text if text.endswith((".", ":")) else text + "."


# ---- What holds for a function ----


def is_lead(header, page):
    """Whether the page begins with what the header says at its top. What that of the lists says is in attrmgr(3)."""
    return not page.sections or header.name != "aaa_attr.h"


def param_text(header, section, item, name):
    for comment in (item.comment, section.comment, header.comment):
        if name in comment.params:
            return comment.params[name]
    return ""


def codes_of(section, item, function):
    """The result codes of the function's own comment, then those of its section."""
    return item.comment.codes + section.comment.codes if function.returns_code else []


def owner_of(section, item):
    return item.comment.owner or section.comment.owner
