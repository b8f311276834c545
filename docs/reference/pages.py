"""The manual pages: one for each family of functions. What they say stands in the headers."""

import dataclasses


@dataclasses.dataclass
class Page:
    name: str
    brief: str
    header: str
    sections: tuple = ()  # titles; none: the whole header
    see: tuple = ()  # pages
    example: str = ""  # FILE:REGION of examples/guide, or FILE
    library: str = "libattrmgr"


PAGES = [
    Page("attrmgr_client", "register the process, name result codes", "aaa_attr.h", ("The client process",),
         ("attrmgr_types", "attrmgr_lists"), "record.c:register"),
    Page("attrmgr_lists", "make, free and examine attribute lists", "aaa_attr.h", ("Lists",),
         ("attrmgr_add", "attrmgr_combine", "attrmgr_checked"), "record.c:build"),
    Page("attrmgr_add", "add attributes to a list, and lists to a list", "aaa_attr.h", ("Adding",),
         ("attrmgr_lists", "attrmgr_find", "attrmgr_names"), "nest.c:build"),
    Page("attrmgr_find", "find and read attributes of a list", "aaa_attr.h", ("Finding",),
         ("attrmgr_cursor", "attrmgr_dictionary"), "record.c:read"),
    Page("attrmgr_remove", "remove attributes from a list", "aaa_attr.h", ("Removing",),
         ("attrmgr_add", "attrmgr_combine"), "memory.c:remove"),
    Page("attrmgr_combine", "copy, append, merge, filter and compare lists", "aaa_attr.h",
         ("Combining", "Whole lists"),
         ("attrmgr_add", "attrmgr_remove"), "merge.c:merge"),
    Page("attrmgr_cursor", "walk a list or a flat buffer", "aaa_cursor.h",
         ("", "Taking and returning", "Moving", "Changing"), ("attrmgr_cursor_read", "attrmgr_decode"), "nest.c:walk"),
    Page("attrmgr_cursor_read", "read the attribute under a cursor", "aaa_cursor.h", ("Reading the current attribute",),
         ("attrmgr_cursor", "attrmgr_dictionary"), "nest.c:walk"),
    Page("attrmgr_flat", "write a list as a flat buffer", "aaa_attr_marshal.h", ("", "Writing flat buffers"),
         ("attrmgr_decode", "attrmgr_gather", "attrmgr_byte_order"), "marshal.c:flat"),
    Page("attrmgr_tlv", "write a list as a TLV buffer", "aaa_attr_marshal.h", ("TLV buffers",),
         ("attrmgr_decode", "attrmgr_flat"), "marshal.c:tlv"),
    Page("attrmgr_decode", "read, check and scrub buffers", "aaa_attr_marshal.h", ("Reading buffers",),
         ("attrmgr_fault", "attrmgr_flat", "attrmgr_tlv", "attrmgr_cursor"), "marshal.c:receive"),
    Page("attrmgr_fault", "why a buffer is refused: the rule, and the byte", "aaa_attr_fault.h", (),
         ("attrmgr_decode", "attrmgr_byte_order", "attrmgr_fields")),
    Page("attrmgr_fields", "what each byte of a buffer is", "aaa_attr_fields.h", (),
         ("attrmgr_fault", "attrmgr_decode")),
    Page("attrmgr_byte_order", "translate flat buffers for hosts of the other byte order", "aaa_attr_marshal.h",
         ("Byte order",), ("attrmgr_flat", "attrmgr_decode"), "machines.c:send"),
    Page("attrmgr_gather", "describe a flat buffer where it lies, for writev", "aaa_attr_marshal.h", ("Gather list",),
         ("attrmgr_flat",), "marshal.c:gather"),
    Page("attrmgr_ipv6_prefix", "pack and unpack IPv6 prefix values", "aaa_attr_marshal.h", ("IPv6 prefix values",),
         ("attrmgr_add", "attrmgr_platform")),
    Page("attrmgr_display", "show lists as text, secrets left out", "aaa_attr_display.h", (),
         ("attrmgr_dictionary", "attrmgr_decode"), "print.c:display"),
    Page("attrmgr_dictionary", "formats, names and value names of the attribute types", "aaa_attr_dict.h", (),
         ("attrmgr_names", "attrmgr_values"), "print.c:dictionary"),
    Page("attrmgr_values", "tables of value names and authorization bitmaps", "aaa_attr_values.h", (),
         ("attrmgr_dictionary", "attrmgr_names")),
    Page("attrmgr_types", "result codes, handles, attribute meta", "aaa_attr_types.h", (),
         ("attrmgr_client", "attrmgr_add"), "errors.c:codes"),
    Page("attrmgr_version", "the version of headers and library", "aaa_attr_version.h", (), ("attrmgr_client",)),
    Page("attrmgr_platform", "handle table, pools, memory: what a process may replace", "aaa_platform.h", (),
         ("attrmgr_checked",)),
    Page("attrmgr_checked", "find lists that leak and handles that name none", "checked.h", (), ("attrmgr_platform",),
         library="libattrmgr_checked"),
]

# The pieces of the C++ interface that attrmgr_cpp(3) describes, in the order in which one meets them.
CPP = ["list", "list_view", "attribute", "formats", "walk", "buffer", "bytes", "error", "text", "address", "attributes"]
