/* aaa_cursor.h: walking a list, or a flat buffer in place, attribute by attribute.

     aaa_cursor *cursor;
     uint32_t type;
     if (aaa_cursor_alloc(list, &cursor) == 0)
       while ((type = aaa_cursor_get_next(cursor)) != 0)
         ...;                               // read the current attribute
     aaa_cursor_free(cursor);               // also after a failed allocation

   A cursor visits the live records in list order. It "has a current attribute" from the first record that it steps on:
   over a list without records it never has one, and at the end the last record stays the current one, removed or not.
   It must not outlive its list (its buffer) nor the cursor pool; a list that is spliced into another is gone.
   Attributes added meanwhile to the block in which the cursor stands are not visited.

   cursor       a cursor over a list or a flat buffer
   list         the handle of a list
   service      a service, AAA_SERVICE_* of aaa_attr_names.h
   protocol     a protocol, AAA_PROTOCOL_* of aaa_attr_names.h
   client_type  a producer client type, AAA_ATTR_CLIENT_TYPE_MIN to AAA_ATTR_CLIENT_TYPE_MAX */
#ifndef ATTRMGR_AAA_CURSOR_H
#define ATTRMGR_AAA_CURSOR_H

#include <stdint.h>

#include <attrmgr/aaa_attr_types.h>
#include <attrmgr/aaa_export.h>

AAA_BEGIN_DECLS

/* 40 bytes on every host. Clients treat it as opaque; its layout is fixed all the same. */
struct aaa_cursor {
  AAA_POINTER(aaa_attr_block, block);   /* the block that holds the current record */
  aaa_attr_list_handle handle;          /* the list; in buffer mode the address of the buffer */
  AAA_POINTER(aaa_attr_record, record); /* the current record; null once a damaged record has ended the walk */
  uint16_t left;                        /* records of the block not yet stepped over */
  uint32_t filter_service;              /* with filter_protocol: both 0 for no filter */
  uint32_t filter_protocol;
  uint16_t flags; /* AAA_CURSOR_BEFORE_FIRST, AAA_CURSOR_BUFFER */
};

#define AAA_CURSOR_BEFORE_FIRST 0x1u /* before the first record of the block: no current attribute */
#define AAA_CURSOR_BUFFER 0x4u       /* walks a flat buffer */

/* ---- Taking and returning ----

   Owner: the caller, until aaa_cursor_free. */

/* Takes a cursor over the list from the pool.
   cursor: null when none was to be had; otherwise to be freed even when the handle is refused.
   AAA_ATTR_ERR_BAD_ARG: cursor null. AAA_ATTR_ERR_NO_MEMORY: no pool or no cursor, looked at before the handle.
   Codes of the handle. */
AAA_API aaa_attr_cerrno aaa_cursor_alloc(aaa_attr_list_handle list, aaa_cursor **cursor) AAA_NOEXCEPT;

/* Takes a cursor that visits only attributes whose meta has this service and protocol. (0, 0) filters nothing; a number
   above 255 matches nothing.
   cursor: as from aaa_cursor_alloc.
   Codes of aaa_cursor_alloc. */
AAA_API aaa_attr_cerrno aaa_cursor_alloc_filtered(aaa_attr_list_handle list, aaa_cursor **cursor, uint32_t service,
                                                  uint32_t protocol) AAA_NOEXCEPT;

/* Takes a cursor over the outer list of a flat buffer. It reads the buffer in place and stays inside the used bytes of
   each block, but is told no length: check a buffer of unknown origin with is_aaa_attr_buffer_valid first.
   buffer: the first byte of the buffer, its marker. It must stay where it is.
   cursor: null when none was to be had.
   AAA_ATTR_ERR_BAD_ARG: buffer or cursor null. AAA_ATTR_ERR_NO_MEMORY: no pool or no cursor. */
AAA_API aaa_attr_cerrno aaa_cursor_alloc_from_buffer(const void *buffer, aaa_cursor **cursor) AAA_NOEXCEPT;

/* Takes a cursor over the sub-list of the current Grouped attribute.
   sub_cursor: null on every failure.
   AAA_ATTR_ERR_NOT_FOUND: no current attribute, or cursor null. AAA_ATTR_ERR_BAD_ARG: it is not Grouped, or its value
   is not a handle; the cursor walks a buffer (whose handles mean nothing here); sub_cursor null.
   AAA_ATTR_ERR_NO_MEMORY: no cursor.
   Codes of the sub-list's handle. */
AAA_API aaa_attr_cerrno aaa_cursor_grouped_alloc(const aaa_cursor *cursor, aaa_cursor **sub_cursor) AAA_NOEXCEPT;

/* Gives the cursor back to the pool. Null, or no pool, does nothing.
   Always 0. */
AAA_API aaa_attr_cerrno aaa_cursor_free(aaa_cursor *cursor) AAA_NOEXCEPT;

/* ---- Moving ---- */

/* Goes to the next attribute.
   Returns its type; 0 at the end. */
AAA_API uint32_t aaa_cursor_get_next(aaa_cursor *cursor) AAA_NOEXCEPT;

/* Goes to the next attribute of the type.
   type: the type sought; 0 goes to the end.
   Returns 1, or 0 with the cursor at the end; 1 for type 0. */
AAA_API int aaa_cursor_move_by_type(aaa_cursor *cursor, uint32_t type) AAA_NOEXCEPT;

/* Back before the first attribute of the list, the filter kept.
   AAA_ATTR_ERR_BAD_ARG: cursor null. AAA_ATTR_ERR_BAD_LIST: a buffer cursor, which cannot be reset.
   Codes of the handle. */
AAA_API aaa_attr_cerrno aaa_cursor_reset(aaa_cursor *cursor) AAA_NOEXCEPT;

/* ---- Changing ---- */

/* Removes the current attribute, if there is one. A sub-list that it holds is not freed. A Grouped attribute of a
   buffer stays: its nested list would become part of the outer one. */
AAA_API void aaa_cursor_remove(aaa_cursor *cursor) AAA_NOEXCEPT;

/* Stamps the current attribute with a producer client type.
   AAA_ATTR_ERR_BAD_ARG: no current attribute, or client_type not 1 to 23. */
AAA_API aaa_attr_cerrno aaa_cursor_set_producer_client_type(aaa_cursor *cursor, uint32_t client_type) AAA_NOEXCEPT;

/* Adds a copy of the current attribute to the list: type, value, meta and producer client type. The handle of a
   sub-list is copied as it is: it would have two owners.
   list: the list to which the copy is added.
   AAA_ATTR_ERR_BAD_ARG: no current attribute, or a Grouped one in a buffer.
   Codes of adding. */
AAA_MUST_CHECK aaa_attr_cerrno aaa_cursor_list_add_attr(aaa_attr_list_handle list,
                                                        const aaa_cursor *cursor) AAA_NOEXCEPT;

/* ---- Reading the current attribute ----

   Without a current attribute the answer is null, 0, or AAA_ATTR_ERR_BAD_ARG, and out-parameters stay as they were.

   length   the length of the value in bytes
   value    the value

   Owner: the list or the buffer; a value holds until the list is coalesced, filtered or freed, or the buffer goes.
   AAA_ATTR_ERR_BAD_ARG: no current attribute, or a null pointer. */

/* Returns the address of the value; a String has its NUL after it. */
AAA_API const void *aaa_cursor_get(const aaa_cursor *cursor, uint32_t *length) AAA_NOEXCEPT;

/* Returns the text of an attribute of a String type, NUL-terminated; null for other formats.
   length: the length of the text without its NUL. */
AAA_API const char *aaa_cursor_get_string(const aaa_cursor *cursor, uint32_t *length) AAA_NOEXCEPT;

/* Reads the value as a number, or as the handle of a sub-list; the format is not looked at.
   sub_list: the handle, which means nothing where it came from a buffer.
   AAA_ATTR_ERR_BAD_FORMAT: the value is not of 4 (8, 8) bytes. */
AAA_API aaa_attr_cerrno aaa_cursor_get_uint32_t(const aaa_cursor *cursor, uint32_t *value) AAA_NOEXCEPT;
AAA_API aaa_attr_cerrno aaa_cursor_get_uint64_t(const aaa_cursor *cursor, uint64_t *value) AAA_NOEXCEPT;
AAA_API aaa_attr_cerrno aaa_cursor_get_grouped_attr_handle(const aaa_cursor *cursor,
                                                           aaa_attr_list_handle *sub_list) AAA_NOEXCEPT;

/* Returns the attribute's meta; null when it has none. */
AAA_API const aaa_attr_meta *aaa_cursor_get_meta(const aaa_cursor *cursor) AAA_NOEXCEPT;

/* Returns the meta's tag, or its mandatory bit; 0 without meta. */
AAA_API uint32_t aaa_cursor_get_tag(const aaa_cursor *cursor) AAA_NOEXCEPT;
AAA_API uint32_t aaa_cursor_mandatory(const aaa_cursor *cursor) AAA_NOEXCEPT;

/* Returns the length of the value, the attribute's producer client type, or what the dictionary says of its type:
   format, name, whether it is Grouped, and whether its class shares a bit with the mask.
   mask: class bits, docs/dictionary.md.
   Owner: the library, of the name; constant text. */
AAA_API uint32_t aaa_cursor_get_length(const aaa_cursor *cursor) AAA_NOEXCEPT;
AAA_API uint32_t aaa_cursor_get_producer_client_type(const aaa_cursor *cursor) AAA_NOEXCEPT;
AAA_API uint32_t aaa_cursor_get_format(const aaa_cursor *cursor) AAA_NOEXCEPT;
AAA_API const char *aaa_cursor_get_name(const aaa_cursor *cursor) AAA_NOEXCEPT;
AAA_API int aaa_cursor_grouped(const aaa_cursor *cursor) AAA_NOEXCEPT;
AAA_API int aaa_cursor_attr_is_class(const aaa_cursor *cursor, uint32_t mask) AAA_NOEXCEPT;

/* Tells where the current record lies; for buffer cursors only.
   offset: from the buffer's first byte to the byte after the record's 8-byte header.
   AAA_ATTR_ERR_BAD_ARG: also for a cursor over a list. */
AAA_API aaa_attr_cerrno aaa_cursor_get_offset_in_buffer(const aaa_cursor *cursor, uint32_t *offset) AAA_NOEXCEPT;

/* Returns the current record, unchecked: before the first aaa_cursor_get_next the place where the first record would
   be. */
AAA_API aaa_attr_record *aaa_cursor_get_current_attr(const aaa_cursor *cursor) AAA_NOEXCEPT;

AAA_END_DECLS

#endif
