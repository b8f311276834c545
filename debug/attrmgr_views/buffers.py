"""Flat and TLV buffers as lines of text. A flat buffer does not say how long it is: without a length, it is read as far
as it holds together."""

import struct

from .layout import (
    FLAG_HEAD,
    HEADER_SIZE,
    META_SIZE,
    Damaged,
    Record,
    Unreadable,
    read_block,
    records_of,
    unpack_meta,
    RECORD_HAS_META,
)
from .text import FMT_GROUPED, NESTING_MAX, count, format_of, hidden_note, name_text, shown, value_text

MARKER_FLAT = 1
MARKER_TLV = 2
TOTAL_SIZE = 4
TLV_RECORD_MIN = 12


class _Bytes:
    """Bytes of a buffer still to be read; a view that nothing reads past."""

    def __init__(self, data):
        self._data = data

    def __len__(self):
        return len(self._data)

    def take(self, size, what):
        if size > len(self._data):
            raise Damaged(f"{what} of {size} bytes passes the {len(self._data)} bytes that are left")
        taken, self._data = self._data[:size], self._data[size:]
        return taken

    def number(self, what):
        return struct.unpack("=I", self.take(4, what))[0]


class _FlatReader:
    """The blocks of a flat buffer in turn."""

    def __init__(self, process, address, length):
        self._process = process
        self._address = address
        self._end = address + length if length is not None else None

    def block(self):
        if self._end is not None and self._end - self._address < HEADER_SIZE:
            raise Damaged(f"the buffer ends at {self._end:#x}, where a block is to follow")
        block = read_block(self._process, self._address)
        if self._end is not None and block.used > self._end - self._address:
            raise Damaged(f"the block at {self._address:#x} uses {block.used} bytes, which pass the buffer's end")
        self._address += block.used
        return block

    def lines(self, indent, depth=0):
        """One list: its blocks, each followed by the lists nested in it."""
        if depth > NESTING_MAX:
            raise Damaged("lists nest too deep")
        first = True
        while True:
            block = self.block()
            if bool(block.flags & FLAG_HEAD) != first:
                raise Damaged(f"the block at {block.address:#x} {'lacks' if first else 'has'} the flag of a first block")
            first = False
            records = [record for record in records_of(block) if not record.removed]
            for record in records:
                if format_of(record.type) != FMT_GROUPED:
                    yield from _line(record, indent)
                    continue
                yield f"{indent}{name_text(record)} = list"
                yield from self.lines(indent + "  ", depth + 1)
            if hidden_note(records):
                yield indent + hidden_note(records)
            if block.next == 0:
                return


def _line(record, indent):
    if shown([record]):
        yield f"{indent}{name_text(record)} = {value_text(record.type, record.value)}"


def _tlv_lines(data, indent, depth=0):
    if depth > NESTING_MAX:
        raise Damaged("lists nest too deep")
    records = []
    while len(data) >= TLV_RECORD_MIN:
        attribute_type = data.number("a type")
        meta = unpack_meta(data.take(META_SIZE, "a meta")) if data.number("the length of a meta") else None
        flags = RECORD_HAS_META if meta is not None else 0
        if format_of(attribute_type) == FMT_GROUPED:
            yield f"{indent}{name_text(Record(attribute_type, flags, b'', meta))} = list"
            yield from _tlv_lines(_Bytes(data.take(_body_size(data), "a nested list")), indent + "  ", depth + 1)
            continue
        value = data.take(data.number("a length"), "a value")
        records.append(Record(attribute_type, flags, value, meta))
        yield from _line(records[-1], indent)
    if hidden_note(records):
        yield indent + hidden_note(records)
    if len(data) > 0:
        raise Damaged(f"{count(len(data), 'byte')} left over after the last record")


def _body_size(data):
    """Takes a total, which counts itself."""
    total = data.number("a total")
    if total < TOTAL_SIZE:
        raise Damaged(f"a total of {total} bytes, less than its own size")
    return total - TOTAL_SIZE


def _read(process, address, size):
    try:
        return process.read(address, size)
    except Unreadable:
        raise Damaged(f"{count(size, 'byte')} at {address:#x} cannot be read") from None


def _all_lines(process, address, length):
    if length == 0:
        raise Damaged("it is empty")
    marker = _read(process, address, 1)[0]
    if marker == MARKER_FLAT:
        yield f"flat buffer at {address:#x}" + (f", {count(length, 'byte')}" if length is not None else "")
        yield from _FlatReader(process, address + 1, length - 1 if length is not None else None).lines("  ")
    elif marker == MARKER_TLV:
        header = _Bytes(_read(process, address + 1, TOTAL_SIZE))
        size = _body_size(header)
        yield f"TLV buffer at {address:#x}, {count(1 + TOTAL_SIZE + size, 'byte')}"
        if length is not None and 1 + TOTAL_SIZE + size > length:
            raise Damaged(f"its total passes the {length} bytes of the buffer")
        yield from _tlv_lines(_Bytes(_read(process, address + 1 + TOTAL_SIZE, size)), "  ")
    else:
        raise Damaged(f"no buffer at {address:#x}: it begins with {marker}, neither 1 (flat) nor 2 (TLV)")


def buffer_lines(process, address, length=None):
    """The buffer as text, as far as it holds together."""
    try:
        yield from _all_lines(process, address, length)
    except Damaged as damaged:
        yield f"damaged: {damaged}"
