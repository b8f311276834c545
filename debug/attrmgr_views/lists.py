"""From a handle to the list that it names."""

import struct

from .layout import FLAG_HEAD, HEAD_SIZE, Damaged, Unreadable, read_block, records_of

# The checked handle table as it describes itself, attrmgr_checked_table.
CHECKED_TABLE = "attrmgr_checked_table"
CHECKED_VERSION = 1
CHECKED_HEADER = struct.Struct("=6I")
POINTER = struct.Struct("=Q")


class CheckedTable:
    """The checked handle table of the process."""

    def __init__(self, process, address):
        self._process = process
        self._chunks = address + CHECKED_HEADER.size
        header = CHECKED_HEADER.unpack(process.read(address, CHECKED_HEADER.size))
        version, self._slot_size, self._block_at, self._generation_at, self._per_chunk, self._chunks_max = header
        if version != CHECKED_VERSION:
            raise Damaged(f"the checked handle table has layout {version}; these views know layout {CHECKED_VERSION}")

    def first_block(self, handle):
        """The address of the list's first block; raises Damaged for a handle that names none."""
        slot, generation = handle & 0xFFFFFFFF, handle >> 32
        chunk = slot // self._per_chunk
        slots = self._slots(chunk) if chunk < self._chunks_max else b""
        last, block = self._slot(slots, slot % self._per_chunk) if slots else (0, 0)
        if generation == 0 or generation > last:
            raise Damaged(f"{handle:#x} never was a handle")
        if generation < last or block == 0:
            raise Damaged(f"{handle:#x} is stale: its list is gone")
        return block

    def live(self):
        """Every handle whose list is there, with the address of its first block."""
        for chunk in range(self._chunks_max):
            slots = self._slots(chunk)
            if not slots:
                return
            for number in range(self._per_chunk):
                generation, block = self._slot(slots, number)
                if block != 0:
                    yield generation << 32 | chunk * self._per_chunk + number, block

    def _slots(self, chunk):
        (address,) = POINTER.unpack(self._process.read(self._chunks + chunk * POINTER.size, POINTER.size))
        return self._process.read(address, self._slot_size * self._per_chunk) if address != 0 else b""

    def _slot(self, slots, number):
        at = number * self._slot_size
        (generation,) = struct.unpack_from("=I", slots, at + self._generation_at)
        (block,) = POINTER.unpack_from(slots, at + self._block_at)
        return generation, block


def checked_table(process):
    """The table that tells which lists are there; None where handles are addresses."""
    address = process.symbol(CHECKED_TABLE)
    return CheckedTable(process, address) if address is not None else None


class AttributeList:
    """A list: what of it can be read. `damage` says why the rest cannot be, None when all is well."""

    def __init__(self, process, handle):
        self.handle = handle
        self.blocks = []
        self.records = []
        self.owner = None
        self.damage = None
        try:
            self._read(process)
        except Damaged as damaged:
            self.damage = str(damaged)

    @property
    def live(self):
        return [record for record in self.records if not record.removed]

    def _read(self, process):
        if self.handle == 0:
            raise Damaged("0 is no handle")
        table = checked_table(process)
        address = table.first_block(self.handle) if table is not None else self.handle
        seen = set()
        while address != 0:
            if address in seen:
                raise Damaged(f"the chain of blocks comes to {address:#x} again")
            seen.add(address)
            block = read_block(process, address)
            if bool(block.flags & FLAG_HEAD) != (not self.blocks):
                what = "lacks" if not self.blocks else "has"
                raise Damaged(f"the block at {address:#x} {what} the flag of a first block")
            self.blocks.append(block)
            if len(self.blocks) == 1:
                self.owner = _owner(process, address)
            for record in records_of(block):  # those before a damaged one are kept
                self.records.append(record)
            address = block.next


def _owner(process, first_block):
    """The code that made the list, which the library notes after the first block."""
    try:
        (owner,) = POINTER.unpack(process.read(first_block + HEAD_SIZE, POINTER.size))
    except Unreadable:
        return None
    return process.place(owner)
