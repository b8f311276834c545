"""Attributes and lists as text. Secrets are not shown: values of opaque types by a word, LI attributes not at all."""

import datetime
import ipaddress
import struct

from .dictionary import PROTOCOLS, SERVICES, TYPES, VALUES
from .layout import HANDLE_SIZE, META_MANDATORY
from .lists import AttributeList

FMT_STRING = 1
FMT_ULONG = 3
FMT_ULONGLONG = 4
FMT_GROUPED = 5
FMT_ENUM = 6
FMT_IPV4 = 7
FMT_IPV6 = 8
FMT_ADDRESS = 9
FMT_STRING_ATTR = 10
FMT_UTC = 11
FMT_BOOLEAN = 12
FMT_OPAQUE = 13
FMT_SPECIAL = 14

LI_TYPES = range(288, 294)
HEX_BYTES_MAX = 32
TEXT_MAX = 120
NESTING_MAX = 128
NAMES_SHOWN = 4


def name_of(attribute_type):
    return TYPES[attribute_type][0] if attribute_type < len(TYPES) else f"type {attribute_type}"


def format_of(attribute_type):
    return TYPES[attribute_type][1] if attribute_type < len(TYPES) else 0


def is_hidden(attribute_type):
    """LI attributes: not even that they are there is shown."""
    return attribute_type in LI_TYPES


def is_secret(attribute_type):
    secret = attribute_type < len(TYPES) and TYPES[attribute_type][2]
    return secret or format_of(attribute_type) in (FMT_OPAQUE, FMT_SPECIAL)


def nested_handle(record):
    """The handle of the list nested in the record; None when there is none."""
    if format_of(record.type) != FMT_GROUPED or len(record.value) != HANDLE_SIZE:
        return None
    return struct.unpack("=Q", record.value)[0]


def _text(value):
    text = value.rstrip(b"\0")
    shown = "".join(
        {34: '\\"', 92: "\\\\"}.get(byte, chr(byte) if 0x20 <= byte < 0x7F else f"\\x{byte:02x}")
        for byte in text[:TEXT_MAX]
    )
    return f'"{shown}"' + (f" and {len(text) - TEXT_MAX} more" if len(text) > TEXT_MAX else "")


def _hex(value):
    more = f" and {len(value) - HEX_BYTES_MAX} more" if len(value) > HEX_BYTES_MAX else ""
    return (value[:HEX_BYTES_MAX].hex(" ") or "nothing") + more


def _number(value):
    return str(int.from_bytes(value, "little" if struct.pack("=H", 1)[0] else "big"))


def _enum(attribute_type, value):
    number = struct.unpack("=I", value)[0]
    names = VALUES.get(attribute_type, [])
    name = names[number] if number < len(names) else None
    return f"{name} ({number})" if name else str(number)


def _time(value):
    seconds = struct.unpack("=q", value)[0]
    try:
        return f"{datetime.datetime.fromtimestamp(seconds, datetime.timezone.utc):%Y-%m-%dT%H:%M:%SZ}"
    except (OverflowError, ValueError, OSError):
        return f"{seconds} s"


def value_text(attribute_type, value):
    """The value, whose length may not suit its format: then its bytes."""
    value_format, length = format_of(attribute_type), len(value)
    if is_hidden(attribute_type) or is_secret(attribute_type):
        return "<secret>"
    if value_format in (FMT_STRING, FMT_STRING_ATTR):
        return _text(value)
    if (value_format, length) in ((FMT_ULONG, 4), (FMT_ULONGLONG, 8)):
        return _number(value)
    if (value_format, length) == (FMT_ENUM, 4):
        return _enum(attribute_type, value)
    if (value_format, length) in ((FMT_IPV4, 4), (FMT_ADDRESS, 4), (FMT_IPV6, 16), (FMT_ADDRESS, 16)):
        return str(ipaddress.ip_address(value))
    if (value_format, length) == (FMT_UTC, 8):
        return _time(value)
    if (value_format, length) == (FMT_BOOLEAN, 1):
        return "true" if value[0] else "false"
    if (value_format, length) == (FMT_GROUPED, HANDLE_SIZE):
        return f"list {struct.unpack('=Q', value)[0]:#x}"
    return _hex(value)


def _named(names, number):
    name = names[number] if number < len(names) else None
    return name or str(number)


def meta_text(meta):
    """What is not zero of a meta: "ppp ip tag=1 mandatory client=7"."""
    parts = []
    if meta.service or meta.protocol:
        parts.append(f"service={_named(SERVICES, meta.service)} protocol={_named(PROTOCOLS, meta.protocol)}")
    if meta.tag:
        parts.append(f"tag={meta.tag}")
    if meta.flags & META_MANDATORY:
        parts.append("mandatory")
    if meta.client:
        parts.append(f"client={meta.client}")
    return " ".join(parts)


def name_text(record):
    """The name of an attribute, with its meta."""
    meta = meta_text(record.meta) if record.meta is not None else ""
    return name_of(record.type) + (f" [{meta}]" if meta else "")


def count(number, what):
    return f"{number} {what}" + ("" if number == 1 else "s")


def shown(records):
    return [record for record in records if not is_hidden(record.type)]


def hidden_note(records):
    hidden = len(records) - len(shown(records))
    return f"{count(hidden, 'attribute')} not shown" if hidden else ""


def summary(attributes):
    """A list in one line: "list 0x100000003, 4 attributes"."""
    parts = [f"list {attributes.handle:#x}"]
    if attributes.blocks:
        parts.append(count(len(shown(attributes.live)), "attribute"))
        removed = len(attributes.records) - len(attributes.live)
        if removed:
            parts.append(f"{removed} removed")
        if len(attributes.blocks) > 1:
            parts.append(count(len(attributes.blocks), "block"))
        if hidden_note(attributes.live):
            parts.append(hidden_note(attributes.live))
    if attributes.damage:
        parts.append(f"damaged: {attributes.damage}" if attributes.blocks else f"no list: {attributes.damage}")
    return ", ".join(parts)


def first_names(attributes):
    """The names of the first attributes that are no secrets."""
    names = [name_of(record.type) for record in shown(attributes.live) if not is_secret(record.type)]
    more = [f"{len(names) - NAMES_SHOWN} more"] if len(names) > NAMES_SHOWN else []
    return ", ".join(names[:NAMES_SHOWN] + more)


def list_lines(process, handle, indent="", above=()):
    """The list and those nested in it, a line for each attribute."""
    attributes = AttributeList(process, handle)
    heading = summary(attributes)
    if not above and attributes.owner:
        heading += f", made at {attributes.owner}"
    yield indent + heading
    if handle in above:
        yield f"{indent}  damaged: the list is nested in itself"
        return
    if len(above) > NESTING_MAX:
        yield f"{indent}  nested too deep to be shown"
        return
    for record in shown(attributes.live):
        nested = nested_handle(record)
        if nested is None:
            yield f"{indent}  {name_text(record)} = {value_text(record.type, record.value)}"
            continue
        lines = list_lines(process, nested, indent + "  ", above + (handle,))
        yield f"{indent}  {name_text(record)} = {next(lines).lstrip()}"
        yield from lines
