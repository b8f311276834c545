#!/usr/bin/env python3
"""Writes the manual pages (section 3) of the library from the comments of its public headers.

    man.py VERSION OUTPUT EXAMPLES HEADERS...    folders: where the pages go, the guide's programs, the C headers

Every function, and every exported variable that is no table of value names, is an alias of the page of its family.
"""

import datetime
import os
import pathlib
import re
import sys

import headers
import pages
import regions

def date():
    """Of the build; one that is to be repeated sets SOURCE_DATE_EPOCH."""
    epoch = os.environ.get("SOURCE_DATE_EPOCH")
    moment = datetime.datetime.fromtimestamp(int(epoch), datetime.timezone.utc) if epoch else datetime.datetime.now()
    return moment.strftime("%Y-%m-%d")


# ---- Text in the language of man(7) ----


def escaped(text):
    return text.replace("\\", "\\e").replace("-", "\\-").replace("'", "\\(aq").replace("`", "\\(ga") \
        .replace("^", "\\(ha").replace("~", "\\(ti")


class Manual:
    """The text of one page."""

    def __init__(self, known):
        self.lines = []
        self.known = known  # names of functions

    def macro(self, name, *words):
        quoted = ['"' + escaped(word).replace('"', "\\(dq") + '"' if re.search(r"[\s\"]", word) else escaped(word)
                  for word in words]
        self.lines.append(" ".join(["." + name] + quoted))

    def raw(self, line):
        self.lines.append(line)

    def text(self, prose):
        """Prose: a sentence a line, names of the interface in bold, parameters that are written *name in italics."""
        for sentence in re.split(r"(?<=[.;:!?]) (?=[A-Z\"(])", prose):
            self.lines.append(self.guarded(self.styled(sentence)))

    def styled(self, text):
        """Words between `...` are code."""
        parts = text.split("`")
        parts[::2] = [self.named(part) for part in parts[::2]]
        parts[1::2] = ["\\fB" + escaped(part) + "\\fP" for part in parts[1::2]]
        return "".join(parts)

    def named(self, text):
        def style(match):
            word = match[0]
            if word.startswith("*"):
                return "\\fI" + escaped(word) + "\\fP"
            if word in self.known:
                return "\\fB" + word + "\\fP()"
            if word.endswith((".h", ".hpp")):
                return "<\\fBattrmgr/" + word + "\\fP>"
            return "\\fB" + word + "\\fP"

        plain = escaped(text)
        return re.sub(r"\*[a-z]\w+|\bAAA_[A-Z0-9_]+\*?|\b[a-z]\w*_\w+\b(?:\.h\b)?|\battrmgr\.hpp\b", style, plain)

    @staticmethod
    def guarded(line):
        return "\\&" + line if line.startswith((".", "'")) else line

    def paragraph(self):
        if not self.lines[-1].startswith((".SH", ".SS")):
            self.macro("PP")

    def code(self, lines):
        self.raw(".in +4n")
        self.raw(".EX")
        self.lines += [self.guarded(escaped(line)) for line in lines]
        self.raw(".EE")
        self.raw(".in")

    def prose(self, blocks):
        """Paragraphs, points and code of a comment."""
        for block in blocks:
            if isinstance(block, str) and self.lines[-1] == ".SH DESCRIPTION":
                block = headers.sentence(block)
            if isinstance(block, tuple):
                self.paragraph()
                self.code(block)
            elif isinstance(block, list):
                for point in block:
                    self.raw(".IP \\(bu 2")
                    self.text(point)
            else:
                self.paragraph()
                self.text(block)

    def definition(self, term, text):
        """A term and what it means; term is already styled."""
        self.macro("TP")
        self.raw(term)
        self.text(text)

    def save(self, path):
        path.write_text("\n".join(self.lines) + "\n")


# ---- The parts of a page ----


def head(manual, name, names, brief, version, library="libattrmgr"):
    manual.raw('.\\" Written from the comments of the public headers by docs/reference/man.py.')
    manual.raw(f'.TH {name} 3 {date()} "attrmgr {version}" "attrmgr manual"')
    manual.raw(".nh\n.ad l")
    manual.macro("SH", "NAME")
    manual.raw(",\n".join([name] + sorted(names)) + " \\- " + escaped(brief))
    manual.macro("SH", "LIBRARY")
    manual.raw(f"AAA attribute lists\n.RI ( {library} ,\\~ \\-l{library[3:]} )")


def wrapped_declaration(function):
    """At most 78 columns, continued under the first parameter."""
    start = function.declaration[: function.declaration.index("(") + 1]
    parts = [p.strip() for p in function.declaration[len(start):-len(");")].split(",")]
    indent = " " * min(len(start), 8)
    lines = [start + parts[0]]
    for part in parts[1:]:
        if len(lines[-1]) + 2 + len(part) + 2 > 72:
            lines[-1] += ","
            lines.append(indent + part)
        else:
            lines[-1] += ", " + part
    lines[-1] += ");"
    return lines


def bold(line):
    return "\\fB" + escaped(line) + "\\fP"


def synopsis(manual, header, sections):
    manual.macro("SH", "SYNOPSIS")
    manual.raw(".nf")
    manual.raw(".B #include <attrmgr/" + header.name + ">")
    for section in sections:
        for item in section.items:
            if item.kind == "type" or item.kind == "functions" or item.kind == "variable":
                manual.raw(".PP")
            if item.kind == "functions":
                for function in item.functions:
                    manual.lines += [bold(line) for line in wrapped_declaration(function)]
            elif item.kind == "variable":
                manual.raw(bold(headers.joined(item.code.replace("AAA_API ", ""))))
            elif item.kind == "type":
                code = re.sub(r"AAA_PACKED ", "", item.code)
                code = re.sub(r"#ifdef __cplusplus\n.*?#endif\n", "", code, flags=re.S)
                manual.lines += [manual.guarded(bold(line)) for line in code.split("\n")]
    manual.raw(".fi")


def tables(manual, sections):
    rows = [row for section in sections for row in section.tables]
    if rows:
        manual.macro("SS", "Tables")
        for name, of_type in rows:
            manual.definition(f"\\fBname_{name}\\fP, \\fBvalue_{name}\\fP", "Of the type " + of_type + ".")


def shared_params(manual, comments, functions):
    """Parameters described once for many functions."""
    used = {p.name for f in functions for p in f.params}
    rows = {}
    for comment in comments:
        for name, text in comment.params.items():
            if name in used:
                rows.setdefault(name, text)
    if rows:
        manual.macro("SS", "Parameters in common")
        for name, text in rows.items():
            manual.definition("\\fI" + name + "\\fP", headers.sentence(text))


def constants(manual, sections):
    macros = [i for s in sections for i in s.items if i.kind == "macro" and not i.code.rstrip().endswith(")")
              and "(" not in i.code.split("/*")[0].split(i.name)[1]]
    if not macros:
        return
    manual.macro("SS", "Constants")
    for item in macros:
        value = item.code.split("/*")[0].split(None, 2)[2].strip().rstrip("u")
        term = f"\\fB{item.name}\\fP ({escaped(value)})"
        if explained(item):
            manual.definition(term, explained(item))
        else:  # it shares the comment above the one before
            manual.lines[-1:-1] = [".TQ", term]


def explained(item):
    """What a macro's comment says, the one at its line's end or the one above."""
    words = [item.trailing] if item.trailing else [b for b in item.comment.prose if isinstance(b, str)]
    return headers.sentence(" ".join(words)) if words else ""


def described(manual, item):
    if not (item.comment.prose or item.comment.returns or item.comment.params or item.comment.owner):
        return
    names = [f.name + "()" for f in item.functions] or [item.name]
    manual.macro("SS", ", ".join(names))
    manual.prose(item.comment.prose)
    if item.comment.returns:
        manual.paragraph()
        manual.text(item.comment.returns)
    for name, text in item.comment.params.items():
        manual.definition("\\fI" + name + "\\fP", headers.sentence(text))
    if item.comment.owner:
        manual.definition("Owner", headers.sentence(item.comment.owner))


def write_codes(manual, codes):
    """In the order in which the comment has them, which may be that of the checks."""
    for code, text in codes:
        if code:
            manual.definition("\\fB" + code + "\\fP", headers.sentence(text))
        elif not text.startswith("Always"):
            manual.paragraph()
            manual.text(headers.sentence(text))


def handle_codes(manual):
    manual.raw("\"The handle\" stands for two codes:")
    manual.raw(".B AAA_ATTR_ERR_BAD_LIST\n(the handle is 0 or what it names is not a list) and")
    manual.raw(".B AAA_ATTR_ERR_STALE_HANDLE\n(the handle names nothing, or a list that is gone).")


def errors(manual, sections):
    groups = [(s, i) for s in sections for i in s.items if i.comment.codes or any(f.returns_code for f in i.functions)]
    if not groups:
        return
    manual.macro("SH", "ERRORS")
    manual.raw("A null pointer where a function needs one gives")
    manual.raw(".BR AAA_ATTR_ERR_BAD_ARG ,\nunless it says otherwise.")
    comments = [s.comment for s in sections] + [item.comment for _, item in groups]
    if any("of the handle" in text for comment in comments for _, text in comment.codes):
        handle_codes(manual)
    for section in sections:
        if section.comment.codes:
            manual.macro("SS", section.title + ": all that return a code" if len(sections) > 1 else "All that return a code")
            write_codes(manual, section.comment.codes)
    for section, item in groups:
        if any(code or not text.startswith("Always") for code, text in item.comment.codes):
            manual.macro("SS", ", ".join(f.name + "()" for f in item.functions))
            write_codes(manual, item.comment.codes)


def return_value(manual, functions):
    manual.macro("SH", "RETURN VALUE")
    if any(f.returns_code for f in functions):
        manual.raw("Functions of type")
        manual.raw(".B aaa_attr_cerrno\nreturn 0 on success and one of the codes under ERRORS on failure.")
        manual.raw("Out\\-parameters are written on success only, unless the description says otherwise.")
    others = [f.name for f in functions if not f.returns_code and f.returns != "void"]
    if others:
        manual.raw("What the others return stands with each of them above:"
                   if len(others) < len(functions) else "What each function returns stands with it above.")
        if len(others) < len(functions):
            manual.raw(",\n".join("\\fB" + name + "\\fP()" for name in others) + ".")


def ownership(manual, sections):
    owned = [s.comment.owner for s in sections if s.comment.owner]
    if owned:
        manual.macro("SH", "OWNERSHIP")
        for text in owned:
            manual.text(headers.sentence(text))


def example(manual, page, examples):
    if not page.example:
        return
    name, _, region = page.example.partition(":")
    manual.macro("SH", "EXAMPLES")
    manual.raw("Out of")
    manual.raw(f".IR examples/guide/{name} ,")
    code = regions.lines(examples / name, region)
    ends = " must() ends the program where a call fails." if any("must(" in line for line in code) else ""
    manual.text("which the tests compile and run." + ends)
    manual.macro("PP")
    manual.code(code)


def see_also(manual, names):
    manual.macro("SH", "SEE ALSO")
    for name in names[:-1]:
        manual.raw(f".BR {name} (3),")
    manual.raw(f".BR {names[-1]} (3)")


def threads(manual):
    manual.macro("SH", "THREADS")
    manual.raw("Different lists may be used by different threads at once.")
    manual.raw("One list, with its sub\\-lists and cursors, is one thread\\(aqs at a time.")


# ---- Pages ----


def family(page, header, known, version, examples):
    sections = [s for s in header.sections if not page.sections or s.title in page.sections]
    functions = [f for s in sections for f in s.functions()]
    names = [f.name for f in functions] + [i.name for s in sections for i in s.items if i.kind == "variable"]
    manual = Manual(known)
    head(manual, page.name, names, page.brief, version, page.library)
    synopsis(manual, header, sections)
    manual.macro("SH", "DESCRIPTION")
    if headers.is_lead(header, page):
        manual.prose(header.comment.prose)
    for section in sections:
        if section.comment.prose:
            if section.title and len(sections) > 1:
                manual.macro("SS", section.title)
            manual.prose(section.comment.prose)
        for item in section.items:
            if item.kind != "macro":
                described(manual, item)
    shared_params(manual, [s.comment for s in sections] + [header.comment], functions)
    constants(manual, sections)
    tables(manual, sections)
    if functions:
        return_value(manual, functions)
        errors(manual, sections)
        ownership(manual, sections)
    if header.name in ("aaa_attr.h", "aaa_cursor.h", "aaa_attr_marshal.h", "aaa_attr_display.h"):
        threads(manual)
    example(manual, page, examples)
    see_also(manual, ["attrmgr", *page.see])
    return manual, names


def overview(include, read, known, version, examples):
    """attrmgr(3): what the library is, the conventions of all calls, and where to read on."""
    manual = Manual(known)
    head(manual, "attrmgr", [], "AAA attribute lists: one representation for every process", version)
    manual.macro("SH", "SYNOPSIS")
    manual.raw(".nf\n.B #include <attrmgr/attrmgr.h>\n.PP")
    manual.raw(bold("cc program.c $(pkg-config --cflags --libs attrmgr)") + "\n.fi")
    manual.macro("SH", "DESCRIPTION")
    whole = headers.opening_comment(include / "attrmgr.h")
    manual.text(headers.sentence(whole.prose[0].split(": ", 1)[1]))
    manual.prose(whole.prose[1:])
    manual.macro("SS", "Families of functions")
    for page in pages.PAGES:
        manual.definition(f".BR {page.name} (3)", headers.sentence(page.brief))
    manual.definition(".BR attrmgr_names (3)", "A constant for every type and value.")
    manual.definition(".BR attrmgr_cpp (3)", "The C++ interface.")
    conventions = next(block for block in read["aaa_attr.h"].comment.prose if isinstance(block, list))
    manual.macro("SH", "CONVENTIONS")
    manual.prose([conventions])
    manual.macro("SH", "ERRORS")
    types = read["aaa_attr_types.h"]
    for section in types.sections:
        for item in section.items:
            if item.name.startswith("AAA_ATTR_ERR_"):
                manual.definition(f"\\fB{item.name}\\fP", explained(item))
    threads(manual)
    example(manual, pages.Page("attrmgr", "", "", example="record.c:build"), examples)
    see_also(manual, sorted([page.name for page in pages.PAGES] + ["attrmgr_names", "attrmgr_cpp"]))
    return manual


def in_words(name, path, brief, known, version, see, pieces=(), example_of=None):
    """A page of a header's opening comment alone, and of those of its pieces."""
    manual = Manual(known)
    head(manual, name, [], brief, version)
    manual.macro("SH", "SYNOPSIS")
    manual.raw(f".B #include <attrmgr/{path.name}>")
    manual.macro("SH", "DESCRIPTION")
    comment = headers.opening_comment(path)
    manual.text(headers.sentence(comment.prose[0].split(": ", 1)[1]))
    manual.prose(comment.prose[1:])
    for piece in pieces:
        prose = headers.opening_comment(piece).prose
        manual.macro("SS", f"<attrmgr/{piece.relative_to(path.parent)}>")
        manual.prose([headers.sentence(prose[0].split(": ", 1)[1]), *prose[1:]])
    if example_of:
        example(manual, *example_of)
    see_also(manual, ["attrmgr", *see])
    return manual


def main(version, *folders):
    output, examples, include, *more = (pathlib.Path(folder) for folder in folders)
    output.mkdir(parents=True, exist_ok=True)
    for old in output.glob("*.3"):
        old.unlink()
    read = headers.read_all(include)
    for folder in more:
        read |= headers.read_all(folder)
    known = {f.name for header in read.values() for f in header.functions()}
    overview(include, read, known, version, examples).save(output / "attrmgr.3")
    in_words("attrmgr_names", include / "aaa_attr_names.h", "a constant for every attribute type and value", known,
             version, ["attrmgr_dictionary", "attrmgr_add"]).save(output / "attrmgr_names.3")
    cpp = [include / "cpp" / f"{name}.hpp" for name in pages.CPP] + [include / "chrono.hpp", include / "format.hpp"]
    in_words("attrmgr_cpp", include / "attrmgr.hpp", "the C++ interface", known, version, ["attrmgr_types"], cpp,
             (pages.Page("attrmgr_cpp", "", "", example="nest.cpp"), examples)).save(output / "attrmgr_cpp.3")
    for page in pages.PAGES:
        manual, names = family(page, read[page.header], known, version, examples)
        manual.save(output / f"{page.name}.3")
        for name in names:
            (output / f"{name}.3").write_text(f".so man3/{page.name}.3\n")
    in_pages = {(page.header, title) for page in pages.PAGES for title in page.sections or
                [s.title for s in read[page.header].sections]}
    left_out = {(h.name, s.title) for h in read.values() for s in h.sections} - in_pages
    if left_out:
        sys.exit(f"No page of docs/reference/pages.py has the sections {sorted(left_out)}")
    written = {path.stem for path in output.glob("*.3")}
    missing = {name for page in pages.PAGES for name in page.see} - written
    if missing:
        sys.exit("docs/reference/pages.py leads to pages that there are not: " + " ".join(sorted(missing)))


main(*sys.argv[1:])
