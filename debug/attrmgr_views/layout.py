"""The bytes of lists and buffers (docs/layout.md), read from memory that may be damaged or not be there at all."""

import struct
from typing import NamedTuple, Optional

BLOCK_MAGIC = 0xABCD
FREED_MAGIC = 0xFFFF
HEADER_SIZE = 24
HEAD_SIZE = 512

FLAG_HEAD = 0x01

RECORD_HEADER_SIZE = 8
RECORD_HAS_META = 0x0001
RECORD_REMOVED = 0x0002
CLIENT_TYPE_SHIFT = 2
CLIENT_TYPE_MASK = 0x7F

META_SIZE = 8
META_MANDATORY = 0x0001
HANDLE_SIZE = 8


class Unreadable(Exception):
    """The memory is not there: not mapped, or left out of the core file."""


class Damaged(Exception):
    """What is there is no list or buffer; the text says why."""


class Process:
    """What is looked at. A debugger's side fills these in."""

    def read(self, address, size):
        """The bytes; raises Unreadable."""
        raise NotImplementedError

    def symbol(self, name):
        """The address of an exported name; None when no loaded object has it."""
        raise NotImplementedError

    def place(self, address):
        """The code at an address in words, None when there is none."""
        raise NotImplementedError


class Meta(NamedTuple):
    service: int
    protocol: int
    tag: int
    flags: int
    client: int


class Record(NamedTuple):
    type: int
    flags: int
    value: bytes
    meta: Optional[Meta]

    @property
    def removed(self):
        return bool(self.flags & RECORD_REMOVED)

    @property
    def client_type(self):
        return self.flags >> CLIENT_TYPE_SHIFT & CLIENT_TYPE_MASK


class Block(NamedTuple):
    address: int
    flags: int
    record_count: int
    used: int
    size: int
    next: int
    records: bytes


def unpack_meta(data):
    return Meta(*struct.unpack("=BBHHH", data))


def read_block(process, address):
    """The block at the address; raises Damaged."""
    try:
        header = process.read(address, HEADER_SIZE)
    except Unreadable:
        raise Damaged(f"no block can be read at {address:#x}") from None
    magic, _, flags, _, record_count, free, used, _, next_block = struct.unpack("=HBBHHHHiQ", header)
    if magic == FREED_MAGIC:
        raise Damaged(f"the block at {address:#x} is marked as freed")
    if magic != BLOCK_MAGIC:
        raise Damaged(f"no block at {address:#x}: it begins with {magic:#06x} instead of {BLOCK_MAGIC:#06x}")
    if used < HEADER_SIZE:
        raise Damaged(f"the block at {address:#x} says that {used} bytes are used, less than its header")
    try:
        records = process.read(address + HEADER_SIZE, used - HEADER_SIZE)
    except Unreadable:
        raise Damaged(f"the block at {address:#x} says that {used} bytes are used, but not all can be read") from None
    return Block(address, flags, record_count, used, used + free, next_block, records)


def records_of(block):
    """The records of the block in turn, removed ones too; raises Damaged where they do not fit the block."""
    at = 0
    for number in range(block.record_count):
        place = f"record {number} of the block at {block.address:#x}"
        if at + RECORD_HEADER_SIZE > len(block.records):
            raise Damaged(f"{place} begins after the block's used bytes")
        attribute_type, flags, length = struct.unpack_from("=HHI", block.records, at)
        at += RECORD_HEADER_SIZE
        meta = None
        if flags & RECORD_HAS_META:
            if at + META_SIZE > len(block.records):
                raise Damaged(f"{place} has a meta that passes the block's used bytes")
            meta = unpack_meta(block.records[at : at + META_SIZE])
            at += META_SIZE
        if at + length > len(block.records):
            raise Damaged(f"{place} has {length} bytes, which pass the block's used bytes")
        yield Record(attribute_type, flags, block.records[at : at + length], meta)
        at += length
    if at < len(block.records):
        raise Damaged(f"the block at {block.address:#x} has {len(block.records) - at} used bytes after its last record")
