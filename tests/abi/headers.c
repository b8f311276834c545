/* The interface as a C client's compiler sees it: layouts and numbers that compiled clients rely on. */
#include <attrmgr/attrmgr.h>
#include <stddef.h>

#define SIZE(type, size) _Static_assert(sizeof(type) == (size), #type)
#define PLACE(type, member, offset) _Static_assert(offsetof(type, member) == (offset), #type "." #member)
#define VALUE(constant, value) _Static_assert((constant) == (value), #constant)

SIZE(struct aaa_cursor, 40);
PLACE(struct aaa_cursor, block, 0);
PLACE(struct aaa_cursor, handle, 8);
PLACE(struct aaa_cursor, record, 16);
PLACE(struct aaa_cursor, left, 24);
PLACE(struct aaa_cursor, filter_service, 28);
PLACE(struct aaa_cursor, filter_protocol, 32);
PLACE(struct aaa_cursor, flags, 36);

SIZE(aaa_attr_meta, 8);
PLACE(aaa_attr_meta, protocol, 1);
PLACE(aaa_attr_meta, tag, 2);
PLACE(aaa_attr_meta, flags, 4);
PLACE(aaa_attr_meta, client, 6);
_Static_assert(_Alignof(aaa_attr_meta) == 1, "a meta stands at any address");

SIZE(aaa_attr_array_entry, 16);
PLACE(aaa_attr_array_entry, length, 8);
SIZE(aaa_attr_value_table, 16);
PLACE(aaa_attr_value_table, count, 8);
SIZE(aaa_author_bitmap, 160);
SIZE(aaa_author_flags, 16160);
SIZE(aaa_attr_list_handle, 8);
SIZE(aaa_attr_cerrno, 4);
SIZE(cdm_endian_tran_type, 4);

VALUE(AAA_ATTR_ERR_BAD_BUFFER, 0xAFDF8200);
VALUE(AAA_ATTR_ERR_NO_MEMORY, 0xCFDF8400);
VALUE(AAA_ATTR_ERR_BAD_ARG, 0xAFDF8600);
VALUE(AAA_ATTR_ERR_BAD_LIST, 0xAFDF8A00);
VALUE(AAA_ATTR_ERR_STALE_HANDLE, 0xAFDF8C00);
VALUE(AAA_ATTR_ERR_NOT_FOUND, 0xAFDF8E00);
VALUE(AAA_ATTR_ERR_BAD_FORMAT, 0xAFDF9000);
VALUE(AAA_ATTR_ERR_BAD_LENGTH, 0xAFDF9400);
VALUE(AAA_ATTR_TYPE_COUNT, 623);
VALUE(AAA_ATTR_FMT_STRING_ATTR, 10);
VALUE(AAA_ATTR_FMT_IPX_NETWORK, 15);
VALUE(AAA_ATTR_FMT_DIAMETER_IDENTITY, 20);
VALUE(AAA_ATTR_FMT_QOS_FILTER_RULE, 22);
VALUE(AAA_ATTR_TYPE_OPAQUE, 0x4);
VALUE(AAA_ATTR_TYPE_NO_AUTHOR, 0x8);
VALUE(AAA_MARSHAL_BUFFER, 1);
VALUE(AAA_MARSHAL_TLV, 2);
VALUE(CDM_ENDIAN_TRAN_HTON, 1);
VALUE(CDM_ENDIAN_TRAN_NTOH, 2);
VALUE(AAA_ATTR_NESTING_MAX, 128);
