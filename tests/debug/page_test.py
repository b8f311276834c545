#!/usr/bin/env python3
"""Types the commands of docs/debugging.md, as they stand, and holds what they print against the page.

    page_test.py PAGE PREFIX STORY       in an empty folder; STORY is the title of a section

The commands before the first section come first. On both sides process numbers and hexadecimal numbers count as equal;
`...` on the page stands for anything within a line. Lines after `(gdb)` go to GDB, in one run for each `$ gdb`.
"""

import os
import pathlib
import re
import shlex
import subprocess
import sys
import tempfile

SKIPPED = 77
CORE_PATTERN = pathlib.Path("/proc/sys/kernel/core_pattern")
PAGE_PREFIX = "export PREFIX=/usr"
TIMEOUT = 100


class Command:
    """A command of the page, what is to come of it, and for GDB what is typed there."""

    def __init__(self, text):
        self.text = text
        self.gdb = []
        self.expected = []


def sections(page):
    """The console blocks by section; None is what stands before the first."""
    blocks, title, inside = {None: []}, None, False
    for line in page.splitlines():
        if line.startswith("## "):
            title = line[3:]
            blocks[title] = []
        elif line.startswith("```"):
            inside = line == "```console"
        elif inside:
            blocks[title].append(line)
    return blocks


def commands(lines):
    found = []
    for line in lines:
        if line.startswith("$ "):
            found.append(Command(line[2:]))
        elif line.startswith("(gdb) "):
            found[-1].gdb.append(line[6:])
            found[-1].expected.append(line)
        else:
            found[-1].expected.append(line)
    return found


def shell_of(command):
    """What the shell is to run: GDB gets its commands as arguments, and repeats each as it is on the page."""
    if not command.gdb:
        return command.text
    words = ["gdb", "-q", "-batch", "-ex", "set width 0"]
    for line in command.gdb:
        words += ["-ex", f"echo (gdb) {line}\\n", "-ex", line]
    return " ".join(shlex.quote(word) for word in words) + command.text.removeprefix("gdb")


def without_start(output):
    """What GDB prints before the first command is not on the page."""
    lines = output.splitlines()
    starts = [number for number, line in enumerate(lines) if line.startswith("(gdb) ")]
    return lines[starts[0] :] if starts else lines


def comparable(line):
    # A shell that runs a script says more of it than one at a terminal.
    line = re.sub(r"^bash: line \d+: +\d+ (Segmentation fault) +(\(core dumped\)).*", r"\1 \2", line)
    line = re.sub(r"0x[0-9a-f]+", "0xN", line)
    return re.sub(r"\[[0-9]+\]|==[0-9]+==", "[N]", line).rstrip()


def matches(expected, line):
    parts = [re.escape(part) for part in comparable(expected).split("...")]
    return re.fullmatch(".*".join(parts), comparable(line)) is not None


def check(command, output):
    lines = without_start(output) if command.gdb else output.splitlines()
    if len(lines) == len(command.expected) and all(map(matches, command.expected, lines)):
        return
    print(f"$ {command.text}\n---- the page says\n" + "\n".join(command.expected))
    print("---- but it was\n" + "\n".join(lines))
    sys.exit(1)


def run_all(wanted, prefix, folder):
    """All in one shell, as a reader would; a mark ends the output of each."""
    mark = "---- end of a command"
    script = []
    for command in wanted:
        text = shell_of(command)
        if text == PAGE_PREFIX:
            text = f"export PREFIX={shlex.quote(prefix)}"
        script += [f"{{ {text}\n}} 2>&1", f"echo '{mark}'"]
    environment = {key: os.environ[key] for key in ("PATH", "LANG") if key in os.environ}
    environment["HOME"] = folder
    done = subprocess.run(
        ["bash", "-c", "\n".join(script)],
        cwd=folder, env=environment, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True, timeout=TIMEOUT, check=False,
    )
    outputs = done.stdout.split(mark + "\n")
    if len(outputs) != len(wanted) + 1:
        sys.exit("the shell ended early:\n" + done.stdout)
    for command, output in zip(wanted, outputs):
        check(command, output)


def main():
    page, prefix, story = sys.argv[1:]
    if story == "A core file" and CORE_PATTERN.read_text(encoding="ascii").strip() != "core":
        print(f"{CORE_PATTERN} keeps core files from the folder in which the page looks for them")
        sys.exit(SKIPPED)
    by_section = sections(pathlib.Path(page).read_text(encoding="utf-8"))
    if story not in by_section:
        sys.exit(f"{page} has no section '{story}', but {[title for title in by_section if title]}")
    wanted = commands(by_section[None])
    # The folders of another place than /usr have to be known before anything is compiled.
    wanted = wanted[:1] + wanted[3:] + wanted[1:3]
    with tempfile.TemporaryDirectory(prefix="attrmgr debugging ") as folder, tempfile.TemporaryDirectory() as plain:
        # The page does not quote the prefix, which has no space where a package puts it.
        link = pathlib.Path(plain, "prefix")
        link.symlink_to(prefix)
        run_all(wanted + commands(by_section[story]), str(link), folder)


if __name__ == "__main__":
    main()
