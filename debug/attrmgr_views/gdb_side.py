"""GDB: what `p` shows of handles and cursors, and the commands `attrmgr list`, `lists`, `cursor` and `buffer`."""

import struct

import gdb
import gdb.printing

from .buffers import buffer_lines
from .layout import (
    RECORD_HAS_META,
    RECORD_HEADER_SIZE,
    RECORD_REMOVED,
    META_SIZE,
    Damaged,
    Process,
    Record,
    Unreadable,
    unpack_meta,
)
from .lists import AttributeList, checked_table
from .text import (
    count,
    first_names,
    list_lines,
    name_text,
    nested_handle,
    shown,
    summary,
    value_text,
)

CURSOR = struct.Struct("=QQQH2xIIH2x")
CURSOR_BEFORE_FIRST = 0x1
CURSOR_BUFFER = 0x4


class GdbProcess(Process):
    """The inferior, live or a core file."""

    def read(self, address, size):
        if size == 0:
            return b""
        try:
            return gdb.selected_inferior().read_memory(address, size).tobytes()
        except (gdb.error, OverflowError, ValueError):
            raise Unreadable(f"{size} bytes at {address:#x}") from None

    def symbol(self, name):
        # Without debug information the name is there, but its type is not.
        try:
            return int(gdb.parse_and_eval(f"(unsigned long) &{name}"))
        except gdb.error:
            return None

    def place(self, address):
        if address == 0 or not self._is_code(address):
            return None
        # The call stands before the address that it returns to.
        found = gdb.find_pc_line(address - 1)
        if found.symtab is not None and found.line:
            return f"{found.symtab.filename}:{found.line}"
        symbol = gdb.execute(f"info symbol {address - 1:#x}", to_string=True)
        return symbol.split(" in section")[0].replace(" + ", "+")

    @staticmethod
    def _is_code(address):
        return not gdb.execute(f"info symbol {address - 1:#x}", to_string=True).startswith("No symbol")


PROCESS = GdbProcess()


# ---- Printers ----


class HandlePrinter:
    """`p list`: the list in short, and its attributes by name."""

    def __init__(self, value):
        self._type = value.type
        self._attributes = AttributeList(PROCESS, int(value))

    def to_string(self):
        return summary(self._attributes)

    def children(self):
        for record in shown(self._attributes.live):
            nested = nested_handle(record)
            if nested is None:
                yield name_text(record), value_text(record.type, record.value)
            elif nested == self._attributes.handle:
                yield name_text(record), f"list {nested:#x}, damaged: the list is nested in itself"
            else:
                yield name_text(record), gdb.Value(nested).cast(self._type)


class CursorPrinter:
    """`p cursor`: the list that it walks and the attribute that it stands on."""

    def __init__(self, value):
        is_pointer = value.type.strip_typedefs().code == gdb.TYPE_CODE_PTR
        self._address = int(value) if is_pointer else int(value.address)

    def to_string(self):
        return cursor_text(self._address)


def cursor_text(address):
    if address == 0:
        return "no cursor"
    try:
        data = PROCESS.read(address, CURSOR.size)
    except Unreadable:
        return f"cursor at {address:#x}, damaged: it cannot be read"
    _, handle, record, left, service, protocol, flags = CURSOR.unpack(data)
    over = f"the flat buffer at {handle:#x}" if flags & CURSOR_BUFFER else f"list {handle:#x}"
    text = f"cursor over {over}"
    if service or protocol:
        text += f", for service {service} protocol {protocol}"
    if record == 0:
        return f"{text}, ended by a damaged record"
    if flags & CURSOR_BEFORE_FIRST:
        return f"{text}, before the first of {count(left, 'record')} of the block at {record - 24:#x}"
    return f"{text}, at {_record_text(record)}, {count(left, 'record')} of the block left"


def _record_text(address):
    try:
        attribute_type, flags, length = struct.unpack("=HHI", PROCESS.read(address, RECORD_HEADER_SIZE))
        address += RECORD_HEADER_SIZE
        meta = None
        if flags & RECORD_HAS_META:
            meta = unpack_meta(PROCESS.read(address, META_SIZE))
            address += META_SIZE
        if length > 0xFFFF:
            return f"a damaged record: {length} bytes"
        record = Record(attribute_type, flags, PROCESS.read(address, length), meta)
    except Unreadable:
        return "a damaged record: it cannot be read"
    if not shown([record]):
        return "an attribute that is not shown"
    removed = " (removed)" if flags & RECORD_REMOVED else ""
    return f"{name_text(record)} = {value_text(record.type, record.value)}{removed}"


def _is_named(value_type, name):
    """Whether the type is the one of that name, or another name for it."""
    value_type = value_type.unqualified()
    while value_type.name != name and value_type.code == gdb.TYPE_CODE_TYPEDEF:
        value_type = value_type.target().unqualified()
    return value_type.name == name


def find_printer(value):
    value_type = value.type
    if value_type.code in (gdb.TYPE_CODE_TYPEDEF, gdb.TYPE_CODE_INT) and _is_named(value_type, "aaa_attr_list_handle"):
        return HandlePrinter(value)
    if _is_named(value_type, "aaa_cursor") and value.address is not None:
        return CursorPrinter(value)
    plain = value_type.strip_typedefs()
    if plain.code == gdb.TYPE_CODE_PTR and _is_named(plain.target(), "aaa_cursor"):
        return CursorPrinter(value)
    return None


# ---- Commands ----


class AttrmgrCommand(gdb.Command):
    """Attribute lists, cursors and buffers of the process or core file.

    attrmgr list HANDLE              a list, with the lists nested in it
    attrmgr lists                    all lists that there are, where the checked handle table is in use
    attrmgr cursor ADDRESS           a cursor
    attrmgr buffer ADDRESS [LENGTH]  a flat or a TLV buffer"""

    def __init__(self):
        super().__init__("attrmgr", gdb.COMMAND_DATA, gdb.COMPLETE_NONE, True)


class Subcommand(gdb.Command):
    """A command that prints lines of text."""

    def __init__(self):
        super().__init__(f"attrmgr {self.name}", gdb.COMMAND_DATA, gdb.COMPLETE_EXPRESSION)

    def invoke(self, argument, from_tty):
        try:
            for line in self.lines(argument):
                print(line)
        except (Damaged, gdb.error) as problem:
            raise gdb.GdbError(str(problem)) from None

    def lines(self, argument):
        raise NotImplementedError


class ListCommand(Subcommand):
    """attrmgr list HANDLE: the list and those nested in it, an attribute a line; secrets are left out."""

    name = "list"

    def lines(self, argument):
        if not argument:
            raise gdb.GdbError("usage: attrmgr list HANDLE")
        return list_lines(PROCESS, int(gdb.parse_and_eval(argument)))


class ListsCommand(Subcommand):
    """attrmgr lists: every list that has not been freed. Only the checked handle table knows them."""

    name = "lists"

    def lines(self, argument):
        table = checked_table(PROCESS)
        if table is None:
            raise gdb.GdbError(
                "The checked handle table is not in use here: nothing knows all lists. Run the program with"
                " LD_PRELOAD=libattrmgr_checked.so."
            )
        number = 0
        for handle, _ in table.live():
            number += 1
            attributes = AttributeList(PROCESS, handle)
            owner = f", made at {attributes.owner}" if attributes.owner else ""
            names = first_names(attributes)
            yield f"{summary(attributes)}{owner}" + (f": {names}" if names else "")
        yield count(number, "list")


class CursorCommand(Subcommand):
    """attrmgr cursor ADDRESS: what the cursor walks, and the attribute that it stands on."""

    name = "cursor"

    def lines(self, argument):
        if not argument:
            raise gdb.GdbError("usage: attrmgr cursor ADDRESS")
        yield cursor_text(int(gdb.parse_and_eval(argument)))


class BufferCommand(Subcommand):
    """attrmgr buffer ADDRESS [LENGTH]: the attributes of a flat or a TLV buffer, as far as it holds together.

    ADDRESS may also be an array or a std::vector of bytes, which tell their length themselves."""

    name = "buffer"

    def lines(self, argument):
        arguments = gdb.string_to_argv(argument)
        if len(arguments) not in (1, 2):
            raise gdb.GdbError("usage: attrmgr buffer ADDRESS [LENGTH]")
        address, length = _extent(gdb.parse_and_eval(arguments[0]))
        if len(arguments) == 2:
            length = int(gdb.parse_and_eval(arguments[1]))
        return buffer_lines(PROCESS, address, length)


def _extent(value):
    """Address and length of a buffer; no length where the type does not tell it."""
    value_type = value.type.strip_typedefs()
    if value_type.code == gdb.TYPE_CODE_ARRAY:
        return int(value.address), value_type.sizeof
    if value_type.code == gdb.TYPE_CODE_STRUCT and (value_type.name or "").startswith("std::vector<"):
        first, end = int(value["_M_impl"]["_M_start"]), int(value["_M_impl"]["_M_finish"])
        return first, end - first
    return int(value), None


def register(objfile):
    """Makes printers and commands known. The objfile is the library: the printers go when it goes."""

    class Printers(gdb.printing.PrettyPrinter):
        def __call__(self, value):
            return find_printer(value)

    gdb.printing.register_pretty_printer(objfile, Printers("attrmgr"), replace=True)
    AttrmgrCommand()
    for command in (ListCommand, ListsCommand, CursorCommand, BufferCommand):
        command()
