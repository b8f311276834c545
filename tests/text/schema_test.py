"""The JSON Schema holds: for what the writer writes, and for what the reader takes and refuses.

    schema_test.py CONVERT SCHEMA EXAMPLE
"""
import json
import subprocess
import sys

try:
    import jsonschema
except ImportError:
    print("skipped: there is no jsonschema; scripts/setup schema installs it")
    sys.exit(77)

convert, schema_path, example_path = sys.argv[1:]
with open(schema_path, encoding="utf-8") as file:
    schema = json.load(file)
jsonschema.Draft202012Validator.check_schema(schema)
validator = jsonschema.Draft202012Validator(schema)
failures = 0


def expect(condition, what):
    global failures
    if not condition:
        failures += 1
        print("not so:", what)


def converted(form, text):
    """What the other form is; None where the text is refused."""
    run = subprocess.run([convert, form], input=text.encode(), capture_output=True, check=False)
    expect(run.returncode in (0, 1), f"convert {form} ended with {run.returncode}: {text[:200]}")
    return run.stdout.decode() if run.returncode == 0 else None


# ---- What is written

with open(example_path, encoding="utf-8") as file:
    example = file.read()
WRITTEN = [
    ("nothing", ""),
    ("the example", example),
    ("a value of every kind", "username = \"\\xff\"\n455 = 18446744073709551615\n455 = 9007199254740992\n"
     "start_time = -9223372036854775808\nstart_time = <01>\nis-session-idle = true\nis-session-idle = <02>\n"
     "Acct-Status-Type = 99\nclass [service=200 protocol=ip tag=1 mandatory flags=2 client=3 producer=4] = 00\n"
     "prefix = 2001:db8::/56\nFailed AVP [] = {\n}\n"),
]
for name, text in WRITTEN:
    written = converted("text", text)
    expect(written is not None, f"{name}: the text is read")
    for error in validator.iter_errors(json.loads(written)):
        expect(False, f"{name}: {error.message}")
    expect(converted("text", converted("json", written)) == written, f"{name}: the JSON comes back")

# ---- What is taken and refused: by the schema, by the reader, which also knows the dictionary


def a_list(*attributes):
    return {"version": 1, "attributes": list(attributes)}


USER = {"type": 197, "value": "bob"}
ROWS = [  # document, whether the schema takes it, whether the reader does
    (a_list(), True, True),
    (dict(a_list(USER), form="flat buffer", size=44), True, True),
    (a_list({"name": "username", "value": "bob"}), True, True),
    (a_list(dict(USER, meta={}, producer=0)), True, True),
    (a_list(dict(USER, meta={"service": "ppp", "protocol": 3, "tag": 65535, "mandatory": False, "flags": 2})), True, True),
    (a_list({"type": 444, "attributes": [USER]}), True, True),
    (a_list({"type": 455, "value": "18446744073709551615"}), True, True),
    # The schema knows no dictionary.
    (a_list({"type": 700, "bytes": "00"}), True, False),
    (a_list({"name": "no such name", "value": "x"}), True, False),
    (a_list({"type": 268, "hidden": True}), True, False),
    (a_list({"type": 444, "value": "x"}), True, False),
    # Both know the form.
    ([], False, False),
    ({"attributes": []}, False, False),
    ({"version": 1}, False, False),
    (dict(a_list(), version=2), False, False),
    (dict(a_list(), more=1), False, False),
    (a_list({"value": "x"}), False, False),
    (a_list({"type": 197}), False, False),
    (a_list(dict(USER, bytes="00")), False, False),
    (a_list(dict(USER, vlaue="x")), False, False),
    (a_list(dict(USER, type="197")), False, False),
    (a_list(dict(USER, value=None)), False, False),
    (a_list({"type": 455, "value": 1.5}), False, False),
    (a_list({"type": 173, "bytes": "0"}), False, False),
    (a_list(dict(USER, meta=[])), False, False),
    (a_list(dict(USER, meta={"tag": 65536})), False, False),
    (a_list(dict(USER, meta={"service": 256})), False, False),
    (a_list(dict(USER, producer=128)), False, False),
]
for document, by_schema, by_reader in ROWS:
    text = json.dumps(document)
    expect(validator.is_valid(document) == by_schema, f"the schema {'takes' if by_schema else 'refuses'} {text}")
    expect((converted("json", text) is not None) == by_reader,
           f"the reader {'takes' if by_reader else 'refuses'} {text}")

sys.exit(1 if failures else 0)
