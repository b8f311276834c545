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
   Attributes added meanwhile to the block in which the cursor stands are not visited. */
#ifndef ATTRMGR_AAA_CURSOR_H
#define ATTRMGR_AAA_CURSOR_H

#include <stdint.h>

#include <attrmgr/aaa_attr_types.h>
#include <attrmgr/aaa_export.h>

AAA_BEGIN_DECLS

/* 40 bytes. Clients treat it as opaque; its layout is fixed all the same. */
struct aaa_cursor {
  aaa_attr_block *block;       /* the block that holds the current record */
  aaa_attr_list_handle handle; /* the list; in buffer mode the address of the buffer */
  aaa_attr_record *record;     /* the current record; null once a damaged record has ended the walk */
  uint16_t left;               /* records of the block not yet stepped over */
  uint32_t filter_service;     /* with filter_protocol: both 0 for no filter */
  uint32_t filter_protocol;
  uint16_t flags; /* AAA_CURSOR_BEFORE_FIRST, AAA_CURSOR_BUFFER */
};

#define AAA_CURSOR_BEFORE_FIRST 0x1u /* before the first record of the block: no current attribute */
#define AAA_CURSOR_BUFFER 0x4u       /* walks a flat buffer */

/* ---- Taking and returning ---- */

/* Takes a cursor over the list from the pool. *cursor is null when none was to be had; otherwise it is the caller's to
   free, even when the handle is refused.
   AAA_ATTR_ERR_NO_MEMORY: no pool or no cursor. Codes of the handle. */
AAA_API aaa_attr_cerrno aaa_cursor_alloc(aaa_attr_list_handle list, aaa_cursor **cursor);

/* As aaa_cursor_alloc, visiting only attributes whose meta has this service and protocol. (0, 0) filters nothing; a
   number above 255 matches nothing. */
AAA_API aaa_attr_cerrno aaa_cursor_alloc_filtered(aaa_attr_list_handle list, aaa_cursor **cursor, uint32_t service,
                                                  uint32_t protocol);

/* Takes a cursor over the outer list of a flat buffer. It reads the buffer in place and stays inside the used bytes of
   each block, but is told no length: check a buffer of unknown origin with is_aaa_attr_buffer_valid first.
   AAA_ATTR_ERR_BAD_ARG: null. AAA_ATTR_ERR_NO_MEMORY: no pool or no cursor, *cursor null. */
AAA_API aaa_attr_cerrno aaa_cursor_alloc_from_buffer(const void *buffer, aaa_cursor **cursor);

/* Takes a cursor over the sub-list of the current Grouped attribute. *cursor is null on every failure.
   AAA_ATTR_ERR_NOT_FOUND: no current attribute. AAA_ATTR_ERR_BAD_ARG: it is not Grouped, or the cursor walks a buffer
   (whose handles mean nothing here). AAA_ATTR_ERR_NO_MEMORY. Codes of the sub-list's handle. */
AAA_API aaa_attr_cerrno aaa_cursor_grouped_alloc(const aaa_cursor *cursor, aaa_cursor **sub_cursor);

/* Returns the cursor to the pool. Null, or no pool, does nothing. Always 0. */
AAA_API aaa_attr_cerrno aaa_cursor_free(aaa_cursor *cursor);

/* ---- Moving ---- */

/* Goes to the next attribute and returns its type; 0 at the end. */
AAA_API uint32_t aaa_cursor_get_next(aaa_cursor *cursor);

/* Goes to the next attribute of the type: 1, or 0 with the cursor at the end. Type 0 goes to the end and gives 1. */
AAA_API int aaa_cursor_move_by_type(aaa_cursor *cursor, uint32_t type);

/* Back before the first attribute of the list, the filter kept.
   AAA_ATTR_ERR_BAD_ARG: null. AAA_ATTR_ERR_BAD_LIST: a buffer cursor, which cannot be reset. Codes of the handle. */
AAA_API aaa_attr_cerrno aaa_cursor_reset(aaa_cursor *cursor);

/* ---- Changing ---- */

/* Removes the current attribute, if there is one. A sub-list that it holds is not freed. A Grouped attribute of a
   buffer stays: its nested list would become part of the outer one. */
AAA_API void aaa_cursor_remove(aaa_cursor *cursor);

/* Stamps the current attribute. AAA_ATTR_ERR_BAD_ARG: none, or client_type not 1 to 23. */
AAA_API aaa_attr_cerrno aaa_cursor_set_producer_client_type(aaa_cursor *cursor, uint32_t client_type);

/* Adds a copy of the current attribute to the list: type, value, meta and producer client type. The handle of a
   sub-list is copied as it is. AAA_ATTR_ERR_BAD_ARG: no current attribute, or a Grouped one in a buffer. Codes of
   adding. */
AAA_API aaa_attr_cerrno aaa_cursor_list_add_attr(aaa_attr_list_handle list, const aaa_cursor *cursor);

/* ---- Reading the current attribute ----

   Without a current attribute: null, 0, or AAA_ATTR_ERR_BAD_ARG; out-parameters stay as they were. */

/* The value and its length. */
AAA_API const void *aaa_cursor_get(const aaa_cursor *cursor, uint32_t *length);

/* The text of an attribute of a String type, NUL-terminated, and its length without the NUL; null for other formats. */
AAA_API const char *aaa_cursor_get_string(const aaa_cursor *cursor, uint32_t *length);

/* The value as a number or as the handle of a sub-list; the format is not looked at.
   AAA_ATTR_ERR_BAD_FORMAT: the value is not of 4 (8, 8) bytes. */
AAA_API aaa_attr_cerrno aaa_cursor_get_uint32_t(const aaa_cursor *cursor, uint32_t *value);
AAA_API aaa_attr_cerrno aaa_cursor_get_uint64_t(const aaa_cursor *cursor, uint64_t *value);
AAA_API aaa_attr_cerrno aaa_cursor_get_grouped_attr_handle(const aaa_cursor *cursor, aaa_attr_list_handle *sub_list);

/* The attribute's meta; null when it has none. */
AAA_API const aaa_attr_meta *aaa_cursor_get_meta(const aaa_cursor *cursor);

/* The meta's tag and its mandatory bit; 0 without meta. */
AAA_API uint32_t aaa_cursor_get_tag(const aaa_cursor *cursor);
AAA_API uint32_t aaa_cursor_mandatory(const aaa_cursor *cursor);

/* Length, producer client type, and what the dictionary says of the type: format, name, whether it is Grouped, and
   whether its class shares a bit with the mask. */
AAA_API uint32_t aaa_cursor_get_length(const aaa_cursor *cursor);
AAA_API uint32_t aaa_cursor_get_producer_client_type(const aaa_cursor *cursor);
AAA_API uint32_t aaa_cursor_get_format(const aaa_cursor *cursor);
AAA_API const char *aaa_cursor_get_name(const aaa_cursor *cursor);
AAA_API int aaa_cursor_grouped(const aaa_cursor *cursor);
AAA_API int aaa_cursor_attr_is_class(const aaa_cursor *cursor, uint32_t mask);

/* Buffer cursors only: the offset in the buffer of the byte after the current record's 8-byte header. */
AAA_API aaa_attr_cerrno aaa_cursor_get_offset_in_buffer(const aaa_cursor *cursor, uint32_t *offset);

/* The current record, unchecked: before the first aaa_cursor_get_next the place where the first record would be. */
AAA_API aaa_attr_record *aaa_cursor_get_current_attr(const aaa_cursor *cursor);

AAA_END_DECLS

#endif
