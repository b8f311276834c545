"""What a debugger shows of attribute lists, cursors and buffers.

    layout      the bytes: blocks and records, read with every length checked
    lists       from a handle to the list that it names
    buffers     the flat and the TLV form
    text        attributes and lists as lines of text
    dictionary  names and formats of the types (made by the build)
    gdb_side    commands and pretty-printers of GDB

Everything but gdb_side knows the process that is looked at by three functions only, so that it works on a core file as
on a live process, and calls nothing in it. docs/debugging.md shows it at work.
"""
