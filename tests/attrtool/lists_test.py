#!/usr/bin/env python3
"""attrtool decode, encode, diff, dict and err as their users call them: lists_test.py ATTRTOOL SOURCE [unittest option...]

SOURCE is the root of the sources, for examples/session.attrs and the schema."""

import json
import os
import pathlib
import pty
import re
import subprocess
import sys
import tempfile
import unittest

TOOL, SOURCE = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2])
SESSION = SOURCE / "examples/session.attrs"
FORMS = {"flat": "flat buffer", "network": "flat buffer in network form", "tlv": "TLV buffer",
         "tlv-swapped": "TLV buffer of the other byte order"}
HEADING = "# Secret values and LI attributes are not shown; --show-secrets shows them.\n"


def call(*arguments, stdin=b"", **environment):
    if isinstance(stdin, str):
        stdin = stdin.encode()
    done = subprocess.run([TOOL, *map(str, arguments)], input=stdin, capture_output=True, timeout=60,
                          env={**os.environ, **environment})
    return done.returncode, done.stdout, done.stderr.decode()


def encoded(text, form="flat"):
    status, out, error = call("encode", "--to", form, "-", stdin=text)
    assert (status, error) == (0, ""), error
    return out


def decoded(buffer, *options):
    status, out, error = call("decode", *options, "-", stdin=buffer)
    assert (status, error) == (0, ""), error
    return out.decode()


def attributes(text):
    return [line for line in text.splitlines() if not line.startswith("#")]


# ---- Dumps as other tools print them ----

def characters(row):
    return "".join(chr(b) if 32 <= b < 127 else "." for b in row)


def rows(data):
    return [(at, data[at:at + 16]) for at in range(0, len(data), 16)]


def hexdump_c(data):
    lines = []
    for at, row in rows(data):
        digits = " ".join(f"{b:02x}" for b in row[:8]) + "  " + " ".join(f"{b:02x}" for b in row[8:])
        lines.append(f"{at:08x}  {digits:<49} |{characters(row)}|")
    return "\n".join(lines + [f"{len(data):08x}", ""])


def xxd(data, offset="{:08x}: ", gap="  "):
    lines = []
    for at, row in rows(data):
        groups = " ".join(row[i:i + 2].hex() for i in range(0, len(row), 2))
        lines.append(offset.format(at) + f"{groups:<39}" + gap + characters(row))
    return "\n".join(lines) + "\n"


def words(data):
    """hexdump without options, of a little-endian machine; an odd byte has a 0 with it."""
    lines = []
    for at, row in rows(data):
        row += b"\0" * (len(row) % 2)
        lines.append(f"{at:07x} " + " ".join(f"{row[i + 1]:02x}{row[i]:02x}" for i in range(0, len(row), 2)))
    return "\n".join(lines + [f"{len(data):07x}", ""])


DUMPS = {
    "hexdump -C": hexdump_c,
    "hexdump": words,
    "xxd": xxd,
    "tcpdump -X": lambda data: "09:30:00.1 IP 192.0.2.1.1812 > 192.0.2.2.1812: UDP\n" + xxd(data, "\t0x{:04x}:  "),
    "a log": lambda data: re.sub("^", "Nov 22 09:30:00 bng-2 aaad[7]: ", xxd(data), flags=re.M),
    "digits": lambda data: data.hex(),
    "pairs": lambda data: data.hex(" "),
    "colons": lambda data: data.hex(":"),
    "a C array": lambda data: ", ".join(f"0x{b:02x}" for b in data),
}


class Decode(unittest.TestCase):
    def test_forms_give_the_text_again(self):
        """Each form is recognised, and encode is the inverse of decode, through text and through JSON."""
        flat = encoded(SESSION.read_bytes())
        for form, name in FORMS.items():
            with self.subTest(form):
                buffer = encoded(SESSION.read_bytes(), form)
                text = decoded(buffer, "--show-secrets")
                self.assertEqual(text.splitlines()[0], f"# {name}, {len(buffer)} bytes")
                self.assertEqual(encoded(text), flat)
                document = decoded(buffer, "--json", "--show-secrets")
                self.assertEqual(json.loads(document)["form"], name)
                self.assertEqual(encoded(document), flat)

    def test_dumps(self):
        # An odd number of bytes, lines that look like digits in the column of characters, and repeated lines.
        buffer = encoded("username = face feed cafe 0123456789abcdef\nclass = " + "ab" * 4001 + "\n")
        expected = decoded(buffer)
        for name, dump in DUMPS.items():
            with self.subTest(name):
                self.assertEqual(decoded(dump(buffer), "--hex"), expected)
        lines = hexdump_c(buffer).splitlines()
        starred = []
        for i, line in enumerate(lines):
            if i > 0 and len(line) > 20 and line[10:58] == lines[i - 1][10:58]:
                if starred[-1] != "*":
                    starred.append("*")
            else:
                starred.append(line)
        self.assertLess(len(starred), 20)
        self.assertEqual(decoded("\n".join(starred), "--hex"), expected)

    def test_dumps_that_are_none(self):
        lines = xxd(encoded(SESSION.read_bytes())).splitlines()
        for text, reason in [("\n".join(lines[:3] + lines[4:]), ":4: expected offset 0x30, where the line before ends"),
                             ("\n".join(lines + lines), "a second dump begins; give one alone"),
                             ("01 cd xx", ":1: expected pairs of hexadecimal digits"),
                             ("01 c", ":1: expected pairs of hexadecimal digits")]:
            with self.subTest(reason):
                status, out, error = call("decode", "--hex", "-", stdin=text)
                self.assertEqual((status, out), (1, b""))
                self.assertIn(reason, error)

    def test_refusals_name_the_byte_and_the_rule(self):
        for form, cut, expected in [
                ("flat", 100, "byte 11: a block's used bytes must end within the buffer (flat buffer, "),
                ("network", 100, "byte 11: a block's used bytes must end within the buffer (flat buffer in network form"),
                ("tlv", 100, "byte 1: a list's total must end within what contains the list (TLV buffer, "),
                ("tlv-swapped", 100, "byte 1: a list's total must end within what contains the list (TLV buffer of the "
                                     "other byte order, ")]:
            with self.subTest(form):
                status, out, error = call("decode", "-", stdin=encoded(SESSION.read_bytes(), form)[:cut])
                self.assertEqual((status, out), (1, b""))
                self.assertTrue(error.startswith("attrtool: standard input: "), error)
                self.assertIn(expected, error)
        status, _, error = call("decode", SESSION)
        self.assertEqual(status, 1)
        self.assertIn("if this is text that shows bytes in hexadecimal, give --hex", error)
        status, _, error = call("decode", "-", stdin=b"\x45\x00" * 10 + encoded("username = x"))
        self.assertIn("try --skip 20", error)
        self.assertIn("username = x", decoded(b"\x45\x00" * 10 + encoded("username = x"), "--skip", "20"))
        self.assertEqual(call("decode", "--skip", "99", "-", stdin=b"\1")[0], 1)

    def test_secrets(self):
        """No verb shows a secret, or that there is an LI attribute, unless it is asked to."""
        text = "username = mira\npassword = <68 75 73 68>\nintercept-id = 68 75 73 68\ntunnel-password = 68757368\n"
        buffer = encoded(text)
        hidden = decoded(buffer)
        self.assertEqual(attributes(hidden), ["username = mira", "password = <opaque value>",
                                              "tunnel-password = <opaque value>"])
        self.assertIn(HEADING, hidden)
        for options in (["--json"], ["--display", "full"], ["--display", "brief"]):
            shown = decoded(buffer, *options)
            self.assertNotRegex(shown, "hush|68.?75|intercept", options)
        self.assertEqual(encoded(decoded(buffer, "--show-secrets")), buffer)
        self.assertIn("intercept-id", decoded(buffer, "--display", "brief", "--show-secrets"))
        status, out, error = call("encode", "-", stdin=hidden)
        self.assertEqual((status, out), (1, b""))
        self.assertRegex(error, r"standard input:4:12: the value is a secret that was left out")

    def test_no_byte_drives_a_terminal(self):
        values = [r"\x1b[2J", r"\xc2\x9b31m", r"\xe2\x80\xae", r"\x07", r"\xff", r"a\x0ab"]
        buffer = encoded("".join(f'username = "{value}"\n' for value in values))
        for options in ([], ["--json"], ["--display", "full"], ["--display", "brief"]):
            shown = decoded(buffer, *options)
            for character in shown:
                self.assertTrue(character == "\n" or character.isprintable(), (options, character))
        for arguments in (["decode", "no\x1b[2J file"], ["dict", "\x1b[2J"], ["err", "\x1b[2J"], ["\x1b[2J"]):
            self.assertNotIn("\x1b", call(*arguments)[2], arguments)

    def test_bytes_after_the_list(self):
        self.assertIn("the last 3 come after the list", decoded(encoded("username = x") + b"abc"))


class Encode(unittest.TestCase):
    def test_bad_lines(self):
        """The place, the reason, what would be right; and nothing is written."""
        with tempfile.TemporaryDirectory() as directory:
            out = pathlib.Path(directory) / "out"
            for text, expected in [
                    ("# note\nusernmae = x", '2:1: expected an attribute name such as "username"'),
                    ("addr = host", "1:8: expected an IPv4 address"),
                    ('{"version": 1, "attributes": [\n {"type": 7, "value": "host"}]}', "2:"),
                    ("{", "1:")]:
                status, _, error = call("encode", "-", "-o", out, stdin=text)
                self.assertEqual((status, out.exists()), (1, False), text)
                self.assertTrue(error.startswith("attrtool: standard input:" + expected), error)
            self.assertEqual(call("encode", SESSION, "-o", out)[0], 0)
            self.assertEqual(out.read_bytes(), encoded(SESSION.read_bytes()))
            self.assertEqual(call("encode", SESSION, "-o", out / "x")[0], 2)

    def test_same_bytes_each_time(self):
        """No address of the process is in a buffer, nor anything else that changes."""
        for form in FORMS:
            self.assertEqual(encoded(SESSION.read_bytes(), form), encoded(SESSION.read_bytes(), form))

    def test_a_buffer_is_not_written_to_a_terminal(self):
        ours, theirs = pty.openpty()
        done = subprocess.run([TOOL, "encode", SESSION], stdout=theirs, stderr=subprocess.PIPE, timeout=60)
        os.close(theirs)
        os.close(ours)
        self.assertEqual(done.returncode, 2)
        self.assertIn(b"give -o FILE", done.stderr)


class Diff(unittest.TestCase):
    def differ(self, before, after, *options):
        with tempfile.TemporaryDirectory() as directory:
            paths = [pathlib.Path(directory) / name for name in "ab"]
            for path, content in zip(paths, (before, after)):
                path.write_bytes(content if isinstance(content, bytes) else content.encode())
            status, out, error = call("diff", *options, *paths)
            self.assertEqual(error, "")
            return status, out.decode()

    def test_forms_and_order_and_repetition_do_not_count(self):
        text = SESSION.read_text()
        for form in FORMS:
            self.assertEqual(self.differ(text, encoded(text, form)), (0, ""), form)
        self.assertEqual(self.differ("username = a\nclass = 01\n", "class = 01\nusername = a\nusername = a\n"), (0, ""))
        self.assertEqual(self.differ("addr [producer=3] = 1.2.3.4", "addr = 1.2.3.4"), (0, ""))

    def test_what_differs(self):
        group = "Failed AVP = {\n  username = %s\n  class = 01\n}\n"
        table = [
            ("username = a", "username = b", ["- username = a", "+ username = b"], ["changed"]),
            ("username = a", "username = a\nclass = 01", ["+ class = 01"], ["added"]),
            ("username = a\nclass = 01", "username = a", ["- class = 01"], ["removed"]),
            ("addr = 1.2.3.4", "addr [tag=1] = 1.2.3.4", ["- addr = 1.2.3.4", "+ addr [tag=1] = 1.2.3.4"], ["meta"]),
            # The one whose value has stayed is the partner, whatever the order.
            ("addr = 1.1.1.1\naddr = 2.2.2.2", "addr [tag=1] = 2.2.2.2",
             ["- addr = 1.1.1.1", "- addr = 2.2.2.2", "+ addr [tag=1] = 2.2.2.2"], ["removed", "meta"]),
            (group % "a", group % "b",
             ["  Failed AVP = {", "-   username = a", "+   username = b", "  }"], ["nested"]),
            ("", group % "a", ["+ Failed AVP = {", "+   username = a", "+   class = 01", "+ }"], ["added"]),
            ("password = 01", "password = 02",
             ["- password = <opaque value>", "+ password = <opaque value>  (another one)"], ["changed"]),
            ("intercept-id = 01\nusername = a", "intercept-id = 02\nusername = a", None, []),
        ]
        for before, after, lines, kinds in table:
            with self.subTest(before=before, after=after):
                before, after = before + "\n", after + "\n"
                status, out = self.differ(before, after)
                self.assertEqual((status, out.splitlines()[2:]), (0 if lines is None else 1, lines or []))
                found = json.loads(self.differ(before, after, "--json")[1])
                self.assertEqual(([change["kind"] for change in found["changes"]], found["equal"]), (kinds, not kinds))
        self.assertEqual(self.differ("intercept-id = 01\n", "intercept-id = 02\n", "--show-secrets")[0], 1)

    def test_trouble_is_2(self):
        self.assertEqual(call("diff", SESSION, "/nonexistent")[0], 2)
        self.assertEqual(call("diff", SESSION, "-", stdin=b"\1\2\3")[0], 2)


class Dict(unittest.TestCase):
    def names(self, *words):
        status, out, error = call("dict", "--json", *words)
        self.assertEqual((status, error), (0, ""), words)
        return [found["name"] for found in json.loads(out)["types"]]

    def test_search(self):
        page = (SOURCE / "docs/dictionary.md").read_text()
        table = [line.strip("| ").split(" | ") for line in page.splitlines() if re.match(r"\| \d+ \| .*AAA_ATTR_TYPE", line)]
        self.assertEqual(len(self.names()), len([row for row in table if row[0] != "0"]))
        for words, first in [(["3"], "Acct-Status-Type"), (["User-Name"], "username"), (["AAA_ATTR_TYPE_ADDR"], "addr"),
                             (["subscription", "id"], "Subscription ID"), (["SUBSCRIPTION_ID"], "Subscription ID"),
                             (["Framed-IP-Address"], "addr")]:
            self.assertEqual(self.names(*words)[0], first, words)
        secrets = {row[1] for row in table if re.search(r"\bsecret\b", " ".join(row))}
        self.assertEqual(set(self.names("flag=secret")), secrets)
        self.assertIn("Acct-Status-Type", self.names("value=Watchdog"))
        self.assertEqual(len(self.names("flag=LI")), 6)
        both = set(self.names("service=ppp", "protocol=ipv6"))
        self.assertIn("delegated-prefix", both)
        self.assertLess(both, set(self.names("service=ppp")))
        self.assertLess(set(self.names("class=0x2", "format=Ulong")), set(self.names("format=Ulong")))

    def test_what_is_shown_of_one(self):
        out = call("dict", "addr")[1].decode()
        for expected in ("AAA_ATTR_TYPE_ADDR\n", "IPv4 Address", "0x2, 0x8", "RFC 2865 Framed-IP-Address (8)", "ppp (ip)"):
            self.assertIn(expected, out)
        self.assertRegex(call("dict", "3")[1].decode(), r"\n +2  Stop +AAA_ACCT_STATUS_TYPE_STOP\n")
        self.assertLessEqual(max(map(len, call("dict")[1].decode().splitlines())), 80)

    def test_mistyped(self):
        for words, expected in [(["usernmae"], '"username"'), (["service=pppp"], '"ppp"'), (["Acct-Staus-Type"], "Acct-Status-Type")]:
            status, out, error = call("dict", *words)
            self.assertEqual((status, out), (1, b""))
            self.assertIn(expected, error)
        self.assertEqual(call("dict", "foo=1")[0], 2)


class Err(unittest.TestCase):
    def test_every_spelling(self):
        header = (SOURCE / "aaa/aaacore/shared/attrmgr/include/attrmgr/aaa_attr_types.h").read_text()
        codes = dict(re.findall(r"#define (AAA_ATTR_ERR_\w+) (0x[0-9A-F]+)u", header))
        self.assertEqual(len(codes), 8)
        for name, text in codes.items():
            number = int(text, 16)
            short = name.removeprefix("AAA_ATTR_ERR_")
            for spelling in (name, short, short.lower().replace("_", "-"), text, text.lower(), text[2:], str(number),
                             str(number - 2**32)):
                status, out, error = call("err", spelling)
                self.assertEqual((status, error), (0, ""), spelling)
                self.assertTrue(out.decode().startswith(name + "\n"), spelling)
        self.assertEqual([code["name"] for code in json.loads(call("err", "--json")[1])["codes"]], list(codes))
        self.assertEqual(call("err", "bad_agr")[0], 1)
        self.assertIn("AAA_ATTR_ERR_BAD_ARG", call("err", "bad_agr")[2])
        self.assertEqual(call("err", "0")[0], 0)


class Program(unittest.TestCase):
    def test_help(self):
        """Every verb has examples, tells its exit statuses, and keeps to 80 columns."""
        verbs = re.findall(r"^  ([a-z]+) ", call("--help")[1].decode().split("Subcommands:")[1], re.M)
        self.assertEqual(sorted(verbs), ["check", "decode", "dict", "diff", "encode", "err", "explain"])
        for verb in verbs:
            status, out, _ = call(verb, "--help")
            self.assertEqual(status, 0)
            for expected in ("Examples:", "Exit status"):
                self.assertIn(expected, out.decode(), verb)
            self.assertLessEqual(max(map(len, out.decode().splitlines())), 80, verb)

    def test_manual(self):
        """The manual page has every verb, and every option that --help has."""
        page = (SOURCE / "tools/attrtool/attrtool.1").read_text()
        verbs = re.findall(r"^  ([a-z]+) ", call("--help")[1].decode().split("Subcommands:")[1], re.M)
        self.assertEqual(sorted(re.findall(r"^\.It Cm ([a-z]+)", page, re.M)), sorted(verbs))
        for arguments in [[]] + [[verb] for verb in verbs]:
            for option in re.findall(r"--([a-z-]+)", call(*arguments, "--help")[1].decode().split("Examples:")[0]):
                self.assertIn(f"Fl -{option}", page, arguments)

    def test_completion(self):
        script = SOURCE / "tools/attrtool/attrtool.bash"
        for words, expected in [("de", "decode"), ("decode --show", "--show-secrets"), ("encode --to net", "network"),
                                ("err AAA_ATTR_ERR_BAD_B", "AAA_ATTR_ERR_BAD_BUFFER"), ("dict ser", "service="),
                                ("--co", "--color"), ("--color al", "always")]:
            line = ["attrtool", *words.split()]
            commands = '. "$1"; shift; COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1)); _attrtool; echo "${COMPREPLY[*]}"'
            done = subprocess.run(["bash", "-c", commands, "bash", script, *line], capture_output=True, timeout=60,
                                  env={**os.environ, "PATH": f"{TOOL.parent}:{os.environ['PATH']}"})
            self.assertEqual(done.stdout.decode().strip(), expected, (words, done.stderr))

    def test_usage(self):
        for arguments in ([], ["nonsense"], ["decode"], ["decode", "--nonsense", "x"], ["encode", "--to", "x", SESSION],
                          ["decode", "/nonexistent"], ["decode", "--json", "--display", "full", "-"]):
            status, out, error = call(*arguments)
            self.assertEqual((status, out, error.count("\n")), (2, b"", 1), arguments)
            self.assertTrue(error.startswith("attrtool: "))

    def test_colours(self):
        for options, environment, coloured in [([], {}, False), (["--color", "always"], {}, True),
                                               (["--color", "always"], {"NO_COLOR": "1"}, True)]:
            self.assertEqual(b"\x1b[" in call(*options, "dict", "addr", **environment)[1], coloured, options)
        for environment, coloured in (({}, True), ({"NO_COLOR": "1"}, False)):
            ours, theirs = pty.openpty()
            kept = {key: value for key, value in os.environ.items() if key != "NO_COLOR"}
            subprocess.run([TOOL, "dict", "193"], stdout=theirs, timeout=60, env={**kept, **environment})
            os.close(theirs)
            self.assertEqual(b"\x1b[" in os.read(ours, 4096), coloured, environment)
            os.close(ours)

    def test_output_that_cannot_be_written(self):
        with open("/dev/full", "wb") as full:
            done = subprocess.run([TOOL, "dict"], stdout=full, stderr=subprocess.PIPE, timeout=60)
        self.assertEqual(done.returncode, 2)


if __name__ == "__main__":
    unittest.main(argv=[sys.argv[0], *sys.argv[3:]])
