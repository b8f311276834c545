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
_Static_assert(sizeof(aaa_attr_fault) == 8 && AT(aaa_attr_fault, offset, 4) && AAA_ATTR_READER_NTOH == 4 &&
                   sizeof(aaa_attr_reader) == 4 && AAA_ATTR_RULE_BOOLEAN_LENGTH == 27 && AAA_ATTR_RULE_TLV_ROOM == 37,
               "faults, and rules, whose numbers stay");
_Static_assert(sizeof(aaa_attr_field) == 32 && AT(aaa_attr_field, number, 24) && AAA_ATTR_FIELD_VALUE == 19 &&
                   AAA_ATTR_FIELD_UNREAD == 22,
               "fields, whose numbers stay");
_Static_assert(AAA_ATTR_FMT_STRING_ATTR == 10 && AAA_ATTR_FMT_OPAQUE == 13 && AAA_ATTR_FMT_SPECIAL == 14 &&
                   AAA_ATTR_FMT_IPX_NETWORK == 15 && AAA_ATTR_FMT_DIAMETER_IDENTITY == 20 &&
                   AAA_ATTR_FMT_IP_FILTER_RULE == 21 && AAA_ATTR_FMT_QOS_FILTER_RULE == 22,
               "formats that no type has");
_Static_assert(AAA_ATTR_TYPE_OPAQUE == 4 && AAA_ATTR_TYPE_NO_AUTHOR == 8, "flags");
_Static_assert(AAA_ATTR_NESTING_MAX == 128, "what peers may send; with it go the limits in docs/SECURITY.md");
_Static_assert(AAA_ATTR_TYPE_USERNAME == 197 && AAA_ATTR_TYPE_CLASS == 173 && AAA_ATTR_TYPE_OR == 346 &&
                   AAA_ATTR_TYPE_SESSION_ID == 180 && AAA_ATTR_TYPE_SESSION_ID_STRING == 451 &&
                   AAA_ATTR_TYPE_INPUT_OCTETS == 453 && AAA_ATTR_TYPE_INPUT_OCTETS_2 == 455 &&
                   AAA_ATTR_TYPE_PREPAID_ASSIGNED_POOL_GROUPED == 475 && AAA_ATTR_TYPE_ND_RA_INITIAL == 622,
               "type constants, those of shared names too");
_Static_assert(AAA_ACCT_STATUS_TYPE_STOP == 2 && AAA_TERMINATION_CAUSE_NONE == 0 &&
                   AAA_TERMINATION_CAUSE_NONE_10 == 10 && AAA_IP_CAN_TYPE_3GPP_EPS == 5 &&
                   AAA_PORT_TYPE_VIRTUAL_PPPOE_OVER_QINQ == 37 && AAA_DISCONNECT_CAUSE_ENUM_REBOOTING == 0 &&
                   sizeof(aaa_acct_status_type) == 4,
               "value constants, those of names that come back too");
