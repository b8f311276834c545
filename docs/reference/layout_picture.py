#!/usr/bin/env python3
"""Draws docs/layout.svg: a list as it lies in memory, and the bytes of its flat buffer, as the library makes them.

    layout_picture.py LIBRARY PICTURE              writes the picture
    layout_picture.py --check LIBRARY PICTURE      fails where the library would give another one

LIBRARY: libattrmgr.so. The addresses in the buffer, which differ from run to run, are drawn as dots. The picture is that
of a little-endian machine.
"""

import ctypes
import pathlib
import struct
import sys
from html import escape
from typing import NamedTuple

HEADER_SIZE = 24
RECORD_SIZE = 8
META_SIZE = 8
RECORD_HAS_META = 0x0001
GROUPED = 5
META_MANDATORY = 1
SERVICE_PPP, PROTOCOL_IP = b"ppp", b"ip"  # names of values


# ---- The list, made by the library ----


class Library:
    def __init__(self, path):
        self.c = ctypes.CDLL(path)
        self.c.aaa_attr_get_name_from_type.restype = ctypes.c_char_p
        self.check(self.c.aaa_attr_client_register(b"picture", (ctypes.c_uint16 * 2)(1, 1)))

    @staticmethod
    def check(code):
        if code != 0:
            raise SystemExit(f"the library answers {code & 0xFFFFFFFF:#x}")

    def type(self, name):
        return self.c.aaa_attr_get_type_from_name(name)

    def name(self, number):
        return self.c.aaa_attr_get_name_from_type(number).decode()

    def value_named(self, enumeration, name):
        value = ctypes.c_uint32()
        self.check(self.c.aaa_attr_get_value_from_enum_name(self.type(enumeration), name, ctypes.byref(value)))
        return value.value

    def is_grouped(self, number):
        return self.c.aaa_attr_get_format_from_type(number) == GROUPED

    def add(self, handle, name, value, meta=None):
        self.check(self.c.aaa_attr_add(handle, self.type(name), value, len(value), meta))

    def example(self):
        """The flat buffer of the list that the picture shows."""
        outer, inner = ctypes.c_uint64(), ctypes.c_uint64()
        self.check(self.c.aaa_attr_list_alloc(ctypes.byref(outer)))
        meta = struct.pack("=BBHHH", self.value_named(b"service", SERVICE_PPP),
                           self.value_named(b"protocol", PROTOCOL_IP), 0, META_MANDATORY, 0)
        self.add(outer, b"username", b"mira.holt")
        self.add(outer, b"addr", bytes([203, 0, 113, 7]), meta)
        self.check(self.c.aaa_attr_add_group_list(outer, ctypes.byref(inner), self.type(b"Subscription ID"), None))
        self.add(inner, b"Subscription ID Data", b"100-2277")
        size = ctypes.c_uint32(4096)
        buffer = ctypes.create_string_buffer(size.value)
        self.check(self.c.aaa_attr_list_to_buffer_v1(outer, buffer, ctypes.byref(size)))
        self.c.aaa_attr_list_free(outer)
        return buffer.raw[: size.value]


# ---- The buffer, cut into fields ----


class Field(NamedTuple):
    kind: str
    label: str
    data: bytes
    meaning: str


class Row(NamedTuple):
    offset: int
    title: str
    fields: list


class Block(NamedTuple):
    header: Row
    records: list
    used: int
    free: int


def number(data):
    return int.from_bytes(data, "little")


def header_row(buffer, at, title):
    data = buffer[at: at + HEADER_SIZE]
    magic, version, flags, blocks, records, free, used, _, following = struct.unpack("<HBBHHHHIQ", data)
    cuts = [("magic", 2, f"{magic:#06X}".replace("X", "x")), ("ver", 1, str(version)), ("flags", 1, f"{flags:#04x}"),
            ("blocks", 2, str(blocks)), ("records", 2, str(records)), ("free", 2, str(free)), ("used", 2, str(used)),
            ("reserved", 4, "0 in a buffer"), ("next", 8, "0: the last block" if following == 0 else "an address")]
    fields = []
    for label, size, meaning in cuts:
        kind = "address" if label == "next" and following else "header"
        fields.append(Field(kind, label, data[:size], meaning))
        data = data[size:]
    return Row(at, title, fields), records, used, free


def record_row(library, buffer, at):
    kind, flags, length = struct.unpack_from("<HHI", buffer, at)
    fields = [Field("record", "type", buffer[at: at + 2], str(kind)),
              Field("record", "flags", buffer[at + 2: at + 4], "meta" if flags & RECORD_HAS_META else "0"),
              Field("record", "length", buffer[at + 4: at + 8], str(length))]
    value_at = at + RECORD_SIZE
    if flags & RECORD_HAS_META:
        service, protocol, tag, bits, client = struct.unpack_from("<BBHHH", buffer, value_at)
        words = f"service {service}, protocol {protocol}, tag {tag}, flags {bits}, client {client}"
        fields.append(Field("meta", "meta", buffer[value_at: value_at + META_SIZE], words))
        value_at += META_SIZE
    value = buffer[value_at: value_at + length]
    if library.is_grouped(kind):
        fields.append(Field("address", "value", value, "a handle of the sender's, never followed"))
    elif value.endswith(b"\0") and length > 4:
        fields.append(Field("value", "value", value, f'"{value[:-1].decode()}" and its NUL'))
    else:
        fields.append(Field("value", "value", value, ".".join(str(byte) for byte in value)))
    return Row(at, library.name(kind), fields), value_at + length


def blocks_of(library, buffer):
    at = 1
    for title in ("block header", "its block header"):
        header, count, used, free = header_row(buffer, at, title)
        records, next_at = [], at + HEADER_SIZE
        for _ in range(count):
            row, next_at = record_row(library, buffer, next_at)
            records.append(row)
        if next_at != at + used:
            raise SystemExit("the records of a block do not fill its used bytes")
        at = next_at
        yield Block(header, records, used, free)
    if at != len(buffer):
        raise SystemExit("the buffer has other bytes than those of two blocks")


# ---- Drawing ----

WIDTH = 960
LEFT = 176
CELL, CELL_HEIGHT = 31, 22
ROW_HEIGHT = 60
MARGIN = 24

STYLE = """
  .paper { fill: #ffffff; stroke: #d0d7de } .ink { fill: #1f2328 } .soft { fill: #59636e }
  .edge { stroke: #59636e; stroke-width: 1; fill: none } .arrow { stroke: #b3261e; stroke-width: 1.6; fill: none }
  .tip { fill: #b3261e } .red { fill: #b3261e } .dashed { stroke-dasharray: 4 3 }
  .header { fill: #cfe3fa } .record { fill: #ffe2b0 } .meta { fill: #e5d6f7 } .value { fill: #cdebd2 }
  .address { fill: #f9d4d0 } .free { fill: #f0f2f4 } .marker { fill: #d8dde2 }
  @media (prefers-color-scheme: dark) {
    .paper { fill: #0d1117; stroke: #3d444d } .ink { fill: #f0f6fc } .soft { fill: #9198a1 }
    .edge { stroke: #9198a1 } .arrow { stroke: #ff8f86 } .tip, .red { fill: #ff8f86 }
    .header { fill: #1d3f66 } .record { fill: #66481a } .meta { fill: #452d66 } .value { fill: #1f5230 }
    .address { fill: #6b2a25 } .free { fill: #1c2128 } .marker { fill: #343b43 }
  }
  text { font: 11px sans-serif } .title { font: bold 16px sans-serif } .head { font: bold 13px sans-serif }
  .name { font: bold 12px sans-serif } .hex { font: 12px monospace } .small { font: 10px sans-serif }
"""


class Drawing:
    def __init__(self):
        self.parts = []

    def text(self, x, y, words, style="ink", anchor="start"):
        self.parts.append(f'<text x="{x:g}" y="{y:g}" class="{style}" text-anchor="{anchor}">{escape(words)}</text>')

    def box(self, x, y, width, height, style, corner=0):
        self.parts.append(f'<rect x="{x:g}" y="{y:g}" width="{width:g}" height="{height:g}" class="{style}"'
                          + (f' rx="{corner}"' if corner else "") + "/>")

    def path(self, steps, style):
        self.parts.append(f'<path d="{steps}" class="{style}"/>')

    def tip(self, x, y, direction):
        """The point of an arrow that ends here, going right or down."""
        steps = f"M{x:g} {y:g}l-8 -4.5v9z" if direction == "right" else f"M{x:g} {y:g}l-4.5 -8h9z"
        self.path(steps, "tip")


def draw_strip(drawing, x, y, block):
    """A block in memory, a box for each record; the place where the value of the group is."""
    height = 40
    segments = [("header", HEADER_SIZE, "header", 72)]
    for row in block.records:
        size = sum(len(field.data) for field in row.fields)
        grouped = any(field.kind == "address" for field in row.fields)
        segments.append((row.title, size, "address" if grouped else "value", 160 if len(row.title) > 12 else 104))
    segments.append(("free", block.free, "free", 130))
    group_at = None
    at = x
    for title, size, style, width in segments:
        drawing.box(at, y, width, height, style)
        drawing.box(at, y, width, height, "edge")
        drawing.text(at + width / 2, y + 17, title, "ink name" if style != "free" else "soft", "middle")
        drawing.text(at + width / 2, y + 32, f"{size} bytes", "soft small", "middle")
        if style == "address":
            group_at = at + width / 2
        at += width
    return group_at, at, y + height


def draw_memory(drawing, top, outer, inner):
    drawing.text(MARGIN, top, "In memory", "ink head")
    drawing.text(MARGIN + 84, top, "a list is a chain of blocks, here one of "
                 f"{outer.used + outer.free} bytes; its handle leads to the first. The value of a group is a handle, too.",
                 "soft")
    y = top + 20
    drawing.text(MARGIN, y + 24, "handle", "red name")
    drawing.path(f"M{MARGIN + 54} {y + 20}H{LEFT - 42}", "arrow")
    drawing.tip(LEFT - 34, y + 20, "right")
    group_at, _, bottom = draw_strip(drawing, LEFT - 34, y, outer)
    inner_y = bottom + 30
    inner_x = group_at - 36
    drawing.path(f"M{group_at:g} {bottom}V{inner_y - 8}", "arrow")
    drawing.tip(group_at, inner_y, "down")
    _, _, end = draw_strip(drawing, inner_x, inner_y, inner)
    drawing.text(inner_x - 12, inner_y + 18, "the list that it names:", "soft", "end")
    drawing.text(inner_x - 12, inner_y + 33, "freed with the outer one", "soft", "end")
    return end


def draw_row(drawing, y, row):
    drawing.text(LEFT - 12, y + 11, row.title, "ink name", "end")
    drawing.text(LEFT - 12, y + 25, f"byte {row.offset}", "soft small", "end")
    x = LEFT
    for field in row.fields:
        width = CELL * len(field.data)
        drawing.box(x, y, width, CELL_HEIGHT, field.kind)
        for i, byte in enumerate(field.data):
            shown = "··" if field.kind == "address" else f"{byte:02x}"
            drawing.text(x + CELL * (i + 0.5), y + 15.5, shown, "ink hex", "middle")
        drawing.box(x, y, width, CELL_HEIGHT, "edge")
        drawing.text(x + width / 2, y - 4, field.label, "soft small", "middle")
        drawing.text(x + width / 2, y + CELL_HEIGHT + 13, field.meaning,
                     "red small" if field.kind == "address" else "ink small", "middle")
        x += width
    return x


def draw_buffer(drawing, top, buffer, blocks):
    drawing.text(MARGIN, top, "As a flat buffer", "ink head")
    drawing.text(MARGIN + 118, top, f"{len(buffer)} bytes: a marker, the used bytes of the block, then those of the list "
                 "within it, in the order of the groups", "soft")
    y = top + 26
    draw_row(drawing, y, Row(0, "marker", [Field("marker", "", buffer[:1], "flat")]))
    y += ROW_HEIGHT
    arrow_from = None
    for which, block in enumerate(blocks):
        first = y
        for row in [block.header] + block.records:
            end = draw_row(drawing, y, row)
            if row.fields[-1].kind == "address":
                arrow_from = (end, y + CELL_HEIGHT / 2)
            y += ROW_HEIGHT
        if which == 1 and arrow_from:
            x, from_y = arrow_from
            right = LEFT + HEADER_SIZE * CELL + 18
            to_y = first + CELL_HEIGHT / 2
            drawing.path(f"M{x} {from_y:g}H{right - 8}q8 0 8 8V{to_y - 8:g}q0 8 -8 8H{right - 10}", "arrow dashed")
            drawing.path(f"M{LEFT + HEADER_SIZE * CELL} {to_y:g}l8 -4.5v9z", "tip")
            drawing.text(right - 26, from_y - 5, "its list comes after the block", "red small", "end")
    return y


def picture(library, buffer):
    outer, inner = blocks_of(library, buffer)
    drawing = Drawing()
    drawing.text(MARGIN, 36, "One list: a user, an address, and a group with one attribute", "ink title")
    end = draw_memory(drawing, 66, outer, inner)
    end = draw_buffer(drawing, end + 44, buffer, [outer, inner])
    legend = [("header", "block header"), ("record", "record header"), ("meta", "meta"), ("value", "value"),
              ("address", "the sender's address, in a buffer without a meaning")]
    x = LEFT
    for kind, words in legend:
        drawing.box(x, end - 8, 14, 14, kind)
        drawing.box(x, end - 8, 14, 14, "edge")
        drawing.text(x + 20, end + 3, words, "soft")
        x += 36 + 6.2 * len(words)
    height = end + 26
    return "\n".join([
        f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {WIDTH} {height:g}" width="{WIDTH}" height="{height:g}" '
        'role="img" aria-label="The bytes of a list in memory and of its flat buffer">',
        "<!-- Written by scripts/picture from what the library makes: do not edit. -->",
        f"<style>{STYLE}</style>",
        f'<rect x="0.5" y="0.5" width="{WIDTH - 1}" height="{height - 1:g}" rx="8" class="paper"/>',
        *drawing.parts, "</svg>", ""])


def main(arguments):
    check = "--check" in arguments
    library_path, path = (a for a in arguments if a != "--check")
    if sys.byteorder != "little":
        raise SystemExit("the picture is that of a little-endian machine")
    library = Library(library_path)
    drawn = picture(library, library.example())
    if not check:
        pathlib.Path(path).write_text(drawn)
    elif pathlib.Path(path).read_text() != drawn:
        raise SystemExit(f"{path} is not what the library makes now: run scripts/picture")


main(sys.argv[1:])
