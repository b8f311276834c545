/* The interface as a C client's compiler sees it: layouts and numbers that compiled clients rely on. */
#include <attrmgr/attrmgr.h>
#include <stddef.h>

#define AT(type, member, offset) (offsetof(type, member) == (offset))

_Static_assert(sizeof(aaa_cursor) == 40 && AT(aaa_cursor, handle, 8) && AT(aaa_cursor, record, 16) &&
                   AT(aaa_cursor, left, 24) && AT(aaa_cursor, filter_service, 28) &&
                   AT(aaa_cursor, filter_protocol, 32) && AT(aaa_cursor, flags, 36),
               "cursor");
_Static_assert(sizeof(aaa_attr_meta) == 8 && AT(aaa_attr_meta, protocol, 1) && AT(aaa_attr_meta, tag, 2) &&
                   AT(aaa_attr_meta, flags, 4) && AT(aaa_attr_meta, client, 6) && _Alignof(aaa_attr_meta) == 1,
               "meta, which stands at any address");
_Static_assert(sizeof(aaa_attr_array_entry) == 16 && AT(aaa_attr_array_entry, length, 8), "gather list");
_Static_assert(sizeof(aaa_attr_value_table) == 16 && AT(aaa_attr_value_table, count, 8), "value table");
_Static_assert(sizeof(aaa_author_bitmap) == 160 && sizeof(aaa_author_flags) == 16160, "authorization bitmaps");
_Static_assert(sizeof(aaa_attr_list_handle) == 8 && sizeof(aaa_attr_cerrno) == 4, "handle and result code");
_Static_assert(CDM_ENDIAN_TRAN_HTON == 1 && CDM_ENDIAN_TRAN_NTOH == 2 && sizeof(cdm_endian_tran_type) == 4, "tran");
_Static_assert(AAA_ATTR_FMT_STRING_ATTR == 10 && AAA_ATTR_FMT_OPAQUE == 13 && AAA_ATTR_FMT_SPECIAL == 14 &&
                   AAA_ATTR_FMT_IPX_NETWORK == 15 && AAA_ATTR_FMT_DIAMETER_IDENTITY == 20 &&
                   AAA_ATTR_FMT_IP_FILTER_RULE == 21 && AAA_ATTR_FMT_QOS_FILTER_RULE == 22,
               "formats that no type has");
_Static_assert(AAA_ATTR_TYPE_OPAQUE == 4 && AAA_ATTR_TYPE_NO_AUTHOR == 8 && AAA_ATTR_NESTING_MAX == 128, "flags");
