/* aaa_attr_fields.h: what each byte of a buffer is. For tools that show buffers; docs/layout.md describes the fields.
 */
#ifndef ATTRMGR_AAA_ATTR_FIELDS_H
#define ATTRMGR_AAA_ATTR_FIELDS_H

#include <stdint.h>

#include <attrmgr/aaa_attr_fault.h>
#include <attrmgr/aaa_attr_types.h>
#include <attrmgr/aaa_export.h>

AAA_BEGIN_DECLS

typedef enum aaa_attr_field_kind
#ifdef __cplusplus
    : int
#endif
{ AAA_ATTR_FIELD_MARKER = 1,

  /* The header of a block */
  AAA_ATTR_FIELD_MAGIC = 2,
  AAA_ATTR_FIELD_VERSION = 3,
  AAA_ATTR_FIELD_BLOCK_FLAGS = 4,
  AAA_ATTR_FIELD_BLOCK_COUNT = 5,
  AAA_ATTR_FIELD_RECORD_COUNT = 6,
  AAA_ATTR_FIELD_FREE_BYTES = 7,
  AAA_ATTR_FIELD_USED_BYTES = 8,
  AAA_ATTR_FIELD_RESERVED = 9,
  AAA_ATTR_FIELD_NEXT = 10,

  /* A record of a flat buffer; type, length, meta and value of a TLV record as well */
  AAA_ATTR_FIELD_TYPE = 11,
  AAA_ATTR_FIELD_RECORD_FLAGS = 12,
  AAA_ATTR_FIELD_LENGTH = 13,
  AAA_ATTR_FIELD_SERVICE = 14,
  AAA_ATTR_FIELD_PROTOCOL = 15,
  AAA_ATTR_FIELD_TAG = 16,
  AAA_ATTR_FIELD_META_FLAGS = 17,
  AAA_ATTR_FIELD_CLIENT = 18,
  AAA_ATTR_FIELD_VALUE = 19,

  /* A TLV buffer alone */
  AAA_ATTR_FIELD_TOTAL = 20,
  AAA_ATTR_FIELD_META_LENGTH = 21,

  /* Bytes that mean nothing to the reader: after the outer list, or after what it refuses */
  AAA_ATTR_FIELD_UNREAD = 22 } aaa_attr_field_kind;

typedef struct aaa_attr_field {
  uint32_t kind;    /* AAA_ATTR_FIELD_* */
  uint32_t offset;  /* in the buffer, its marker included */
  uint32_t size;    /* bytes of it that are there */
  uint32_t missing; /* bytes of it that the buffer, or the block or list that it is in, has no room for */
  uint32_t depth;   /* of the list that it belongs to: 0 for the outer one */
  uint32_t type;    /* of the record that it belongs to; 0 in a header */
  uint64_t number;  /* the field in host terms, flags with bit 0 first, if it is a number and whole; else 0. Not that of
                       a value. */
} aaa_attr_field;

/* Is told of a field. Fields come in the order of their bytes, one after the other: they cover the buffer, but for
   values of no bytes. */
typedef void (*aaa_attr_field_callback)(const aaa_attr_field *field, void *context);

/* Names every byte of a buffer, as far as the reader gets, and a little further: the block or record that it refuses is
   taken apart as far as it can be. Any bytes may be handed over; they are only read.
   buffer: the bytes, the marker first.
   length: how many there are.
   reader: the call that is to read the buffer.
   callback: is called for each field.
   context: handed on to the callback.
   fault: what aaa_attr_buffer_fault answers; may be null.
   Codes of aaa_attr_buffer_fault; AAA_ATTR_ERR_BAD_ARG also for a null callback. */
AAA_API aaa_attr_cerrno aaa_attr_buffer_fields(const void *buffer, uint32_t length, aaa_attr_reader reader,
                                               aaa_attr_field_callback callback, void *context, aaa_attr_fault *fault);

AAA_END_DECLS

#endif
