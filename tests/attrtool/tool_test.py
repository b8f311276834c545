#!/usr/bin/env python3
"""attrtool explain and check as their users call them: tool_test.py ATTRTOOL BUFFERS [unittest option...]

BUFFERS is what write_buffers made. UPDATE_GOLDEN=1 writes the golden texts anew."""

import json
import os
import pathlib
import pty
import re
import shutil
import subprocess
import sys
import tempfile
import unittest

HERE = pathlib.Path(__file__).parent
TOOL = pathlib.Path(sys.argv[1])
BUFFERS = pathlib.Path(sys.argv[2])


def call(*arguments, stdin=b"", environment=None):
    done = subprocess.run([TOOL, *map(str, arguments)], input=stdin, capture_output=True, timeout=60,
                          env={**os.environ, **(environment or {})})
    return done.returncode, done.stdout, done.stderr.decode()


def hex_of(form, out):
    """The bytes that explain shows, in hexadecimal, one after the other."""
    text = out.decode()
    if form == "--json":
        fields = [field for section in json.loads(text)["sections"] for field in section["fields"]]
        return "".join(field["bytes"] or "..." for field in fields)
    if form == "--html":
        rows = re.findall(r'<span class="hex"[^>]*>(.*?)</span><span class="text"', text)
        return re.sub(r"<[^>]*>| ", "", "".join(rows))
    return "".join(re.findall(r"^[! ] *\d+  (.{23})", text, re.M)).replace(" ", "")


def explained(path, *options):
    status, out, _ = call("explain", "--json", path, *options)
    return status, json.loads(out)


class Explain(unittest.TestCase):
    def test_every_row_of_the_table(self):
        """The rule and the byte are those that the library's table names, for each reader."""
        rows = [json.loads(line) for line in (BUFFERS / "malformed.json").read_text().splitlines()]
        self.assertGreater(len(rows), 60)
        for row in rows:
            with self.subTest(row["what"]):
                status, found = explained(BUFFERS / "malformed" / row["file"])
                answers = {reader["reader"]: reader for reader in found["readers"]}
                for reader in answers.keys() & row.keys():
                    told = {key: answers[reader].get(key) for key in row[reader]}
                    self.assertEqual(told, row[reader], reader)
                decides = "to_host" if "to_host" in row else "list"
                self.assertIn(decides, answers)
                if not row[decides]["accepted"]:
                    self.assertEqual((status, found["accepted"]), (1, False))
                if decides == "list":
                    self.assertEqual(status, 0 if row["list"]["accepted"] else 1)

    def test_every_byte_has_one_field(self):
        for path in sorted(p for p in BUFFERS.rglob("*") if p.is_file() and p.suffix != ".json"):
            with self.subTest(str(path.relative_to(BUFFERS))):
                _, found = explained(path, "--show-secrets")
                fields = [field for section in found["sections"] for field in section["fields"]]
                at = 0
                for field in fields:
                    self.assertEqual(field["offset"], at, field)
                    at += field["size"]
                shown = bytes.fromhex("".join(field["bytes"] for field in fields))
                self.assertEqual(shown, path.read_bytes())
                for reader in found["readers"]:
                    if not reader["accepted"] and reader["offset"] < at:
                        holds = [f for f in fields if f["offset"] <= reader["offset"] < f["offset"] + f["size"]]
                        self.assertEqual([f["name"] for f in holds], [reader["field"]])

    def test_texts(self):
        """What a person reads, of each form and of two damaged buffers."""
        for path in ["good/nested", "good/network", "good/foreign", "good/tlv", "good/trailing", "bad/no-nul",
                     "bad/used", "secret/flat", "secret/used-bytes"]:
            with self.subTest(path):
                status, out, error = call("explain", "-", stdin=(BUFFERS / path).read_bytes())
                golden = HERE / "golden" / (path.replace("/", "-") + ".txt")
                if os.environ.get("UPDATE_GOLDEN"):
                    golden.write_bytes(out)
                self.assertEqual(out.decode("ascii"), golden.read_text())
                self.assertEqual((status, error), (0 if path in ("secret/flat",) or "good" in path else 1, ""))
                self.assertEqual([line for line in out.decode().splitlines() if len(line) > 80], [])

    def test_secrets(self):
        """Passwords and LI attributes show up nowhere, be the buffer damaged, until they are asked for."""
        for path in sorted((BUFFERS / "secret").iterdir()):
            for form in ["--json", "--html", "--color=never"]:
                with self.subTest(path.name + " " + form):
                    _, hidden, _ = call("explain", form, path)
                    _, shown, _ = call("explain", form, path, "--show-secrets")
                    self.assertEqual([byte for byte in hidden + shown if byte > 126 or byte < 32 and byte != 10], [])
                    self.assertNotIn(b"intercept-id", hidden)
                    if form == "--html":
                        self.assertNotIn(b"<script>alert", hidden + shown)
                    for secret in [b"open-ses", b"wiretap"]:
                        self.assertNotIn(secret, hidden)
                        self.assertNotIn(secret.hex(), hex_of(form, hidden))
                        if secret in path.read_bytes():
                            self.assertIn(secret.hex(), hex_of(form, shown))

    def test_tlv_of_the_other_byte_order(self):
        """Whole, cut at every byte, or with a byte changed: what is said of it is what is said of the host's own."""
        text = b'username = mira\nFramed-MTU = 1500\nInput octets = 12345678901\nSubscription ID = {\n' \
               b'  Subscription ID Data = "100-2277"\n}\naddr [tag=3] = 10.1.2.3\n'
        own, other = [call("encode", "--to", form, "-", stdin=text)[1] for form in ["tlv", "tlv-swapped"]]
        self.assertTrue(len(own) == len(other) > 60 and own != other)
        with tempfile.TemporaryDirectory() as directory:
            said = []
            for buffer in [own, other]:
                for size in range(5, len(buffer) + 1):
                    pathlib.Path(directory, f"{size:03}").write_bytes(buffer[:size])
                lines = call("check", "--json", directory)[1].splitlines()
                said.append([json.loads(line) for line in lines])
            for of_own, of_other in zip(*said):
                self.assertEqual({**of_other, "form": "TLV buffer"}, {**of_own, "form": "TLV buffer"}, of_own)
            self.assertIn("other byte order", said[1][-2]["form"])
            path = pathlib.Path(directory, "whole")
            explanations = []
            for buffer in [own, other]:
                path.write_bytes(buffer)
                status, found = explained(path)
                self.assertEqual((status, hex_of("--json", call("explain", "--json", path)[1])), (0, buffer.hex()))
                explanations.append([[(field["name"], field["offset"], field["meaning"]) for field in section["fields"]]
                                     for section in found["sections"]])
            self.assertEqual(*explanations)

    def test_dumps_and_what_comes_before_a_buffer(self):
        """explain and check read what decode reads."""
        nested = (BUFFERS / "good" / "nested").read_bytes()
        for verb in ["explain", "check"]:
            expected = call(verb, "-", stdin=nested)
            self.assertEqual(expected[0], 0)
            self.assertEqual(call(verb, "--hex", "-", stdin=nested.hex(" ").encode()), expected)
            self.assertEqual(call(verb, "--skip", 20, "-", stdin=bytes(20) + nested), expected)
            self.assertEqual(call(verb, "--hex", "--skip", 1, "-", stdin=b"ff" + nested.hex().encode()), expected)
            status, out, error = call(verb, "--hex", "-", stdin=b"01 cd xx")
            self.assertEqual((status, out), (2 if verb == "check" else 1, b""))
            self.assertIn("expected pairs of hexadecimal digits", error)

    def test_colours(self):
        """Only where they are asked for, or on a terminal that wants them."""
        path = BUFFERS / "bad" / "used"
        self.assertNotIn(b"\x1b", call("explain", path)[1])
        self.assertIn(b"\x1b[", call("explain", "--color=always", path)[1])
        self.assertIn(b"\x1b[", call("--color=always", "explain", path)[1])
        for variable, coloured in [({}, True), ({"NO_COLOR": "1"}, False), ({"NO_COLOR": ""}, True)]:
            self.assertEqual(b"\x1b[1m" in on_terminal("explain", path, environment=variable)[1], coloured, variable)


class Check(unittest.TestCase):
    def test_single_captures(self):
        rows = [
            ("good/nested", [], 0, "flat buffer, 185 bytes: 3 lists, 4 blocks, 6 records (1 removed)"),
            ("good/network", [], 0, "flat buffer in network form, 185 bytes: 3 lists, 4 blocks, 6 records (1 removed)"),
            ("good/tlv", ["--strict"], 0, "TLV buffer, 84 bytes: 3 lists, 5 records"),
            ("good/foreign", [], 0, "flat buffer with the foreign layout, 29 bytes: 1 list, 1 block, 1 record"),
            ("good/foreign", ["--strict"], 1, "in place, refused at byte 4 (block flags): a block that is read in place "
             "must have the header of 24 bytes (flat buffer with the foreign layout, 29 bytes)"),
            ("bad/no-nul", [], 1, "refused at byte 44 (value): a stored text must end in NUL (flat buffer, 185 bytes)"),
        ]
        for path, options, status, line in rows:
            with self.subTest(path):
                found = call("check", BUFFERS / path, *options)
                self.assertEqual(found, (status, f"{BUFFERS / path}: {line}\n".encode(), ""))

    def test_directory(self):
        status, out, error = call("check", BUFFERS / "good", BUFFERS / "bad")
        lines = out.decode().splitlines()
        self.assertEqual((status, error, len(lines)), (1, "", 5), out)
        self.assertEqual(lines[2], "7 captures, 1040 bytes: 5 good, 2 refused")
        self.assertEqual(lines[3:], ["  1  a block's used bytes must end within the buffer",
                                     "  1  a stored text must end in NUL"])
        self.assertEqual(len(call("check", "--all", BUFFERS / "good")[1].splitlines()), 6)

    def test_json_lines(self):
        status, out, _ = call("check", "--json", BUFFERS / "malformed")
        *captures, summary = [json.loads(line) for line in out.splitlines()]
        self.assertEqual(status, 1)
        self.assertEqual(summary["captures"], len(captures))
        self.assertEqual(summary["refused"], sum(not capture["good"] for capture in captures))
        self.assertEqual(summary["refused"], sum(rule["times"] for rule in summary["rules"]))
        for capture in captures:
            found = explained(capture["file"])[1]
            self.assertEqual(capture["good"], found["accepted"])
            self.assertEqual(capture["readers"], found["readers"])
            self.assertEqual(capture["form"], found["form"])
            if capture["good"]:
                self.assertEqual(capture["counts"], found["counts"])

    def test_progress_on_a_terminal(self):
        with tempfile.TemporaryDirectory() as directory:
            for number in range(300):
                shutil.copy(BUFFERS / "good" / "tlv", f"{directory}/{number}")
            status, out, error = on_terminal("check", directory)
            self.assertEqual(status, 0)
            self.assertIn(b"64 of 300 captures", error)
            self.assertTrue(error.endswith(b"\r\x1b[K"), error)
            self.assertEqual(call("check", directory)[2], "")


class Usage(unittest.TestCase):
    def test_what_cannot_be_done_is_said_in_a_sentence(self):
        with tempfile.TemporaryDirectory() as directory:
            empty = pathlib.Path(directory, "empty")
            empty.touch()
            rows = [
                ([], "subcommand"),
                (["explain"], "FILE is required"),
                (["explain", "--json", "--html", "x"], "excludes"),
                (["explain", "--nonsense", "x"], "--nonsense"),
                (["explain", f"{directory}/none"], f"{directory}/none: No such file or directory"),
                (["explain", directory], f"{directory}: Is a directory"),
                (["explain", empty], f"{empty}: is empty"),
                (["check", f"{directory}/a\x1b[31mb"], "a\\x1b[31mb: No such file"),
                (["check", empty, BUFFERS / "good" / "tlv"], "is empty"),
            ]
            for arguments, part in rows:
                with self.subTest(str(arguments)):
                    status, _, error = call(*arguments)
                    self.assertEqual(status, 2)
                    self.assertIn(part, error)
                    self.assertRegex(error, r"^attrtool: [^\n]+\n$")

    def test_help_has_examples(self):
        for verb in ["explain", "check"]:
            status, out, error = call(verb, "--help")
            self.assertEqual((status, error), (0, ""))
            self.assertIn(b"Examples:", out)
            self.assertIn(b"Exit status:", out)
            self.assertEqual([line for line in out.decode().splitlines() if len(line) > 80], [])


def on_terminal(*arguments, environment=None):
    """Status, output and errors of a call whose output and errors are terminals."""
    streams = [pty.openpty(), pty.openpty()]
    variables = {**os.environ, **(environment or {})}
    if not environment:
        variables.pop("NO_COLOR", None)
    process = subprocess.Popen([TOOL, *map(str, arguments)], stdout=streams[0][1], stderr=streams[1][1], env=variables)
    for _, inner in streams:
        os.close(inner)
    texts = []
    for outer, _ in streams:
        text = b""
        try:
            while part := os.read(outer, 65536):
                text += part
        except OSError:  # the other end is closed
            pass
        os.close(outer)
        texts.append(text)
    return process.wait(timeout=60), *texts


if __name__ == "__main__":
    unittest.main(argv=[sys.argv[0], *sys.argv[3:]])
