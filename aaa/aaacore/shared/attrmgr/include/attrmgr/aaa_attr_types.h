/* aaa_attr_types.h: result codes and the types that all other headers share. */
#ifndef ATTRMGR_AAA_ATTR_TYPES_H
#define ATTRMGR_AAA_ATTR_TYPES_H

#include <stdint.h>

#include <attrmgr/aaa_export.h>

AAA_BEGIN_DECLS

/* The result of every operation that can fail: 0, or one of the codes below. Printed in diagnostics as a signed
   number. A function's comment says which codes it gives and when; the lines here are their general meaning. */
typedef uint32_t aaa_attr_cerrno;

#define AAA_ATTR_ERR_BAD_BUFFER 0xAFDF8200u   /* a flat buffer is cut short or does not hold together */
#define AAA_ATTR_ERR_NO_MEMORY 0xCFDF8400u    /* an allocation failed, or a list has no room for more blocks */
#define AAA_ATTR_ERR_BAD_ARG 0xAFDF8600u      /* an argument is missing, out of range or of the wrong length */
#define AAA_ATTR_ERR_BAD_LIST 0xAFDF8A00u     /* the handle is 0 or what it names is not a list */
#define AAA_ATTR_ERR_STALE_HANDLE 0xAFDF8C00u /* the handle names nothing, or a list that is gone */
#define AAA_ATTR_ERR_NOT_FOUND 0xAFDF8E00u    /* no such attribute type, or no such attribute in the list */
#define AAA_ATTR_ERR_BAD_FORMAT 0xAFDF9000u   /* a stored length does not suit the typed read; a buffer is too small */
#define AAA_ATTR_ERR_BAD_LENGTH 0xAFDF9400u   /* the lengths of a TLV buffer do not add up */

/* Names an attribute list. Issued by the handle table (aaa_platform.h); 0 is never a valid handle. */
typedef uint64_t aaa_attr_list_handle;

/* A list block and an attribute record: packed bytes inside a list or a flat buffer, never to be copied as a C
   structure. docs/layout.md gives their offsets; aaa_cursor.h reads them. */
typedef struct aaa_attr_block aaa_attr_block;
typedef struct aaa_attr_record aaa_attr_record;

/* What an attribute may carry beside its value: 8 bytes. Packed, since inside records it lies at any alignment. */
typedef struct AAA_PACKED aaa_attr_meta {
  uint8_t service; /* with protocol the attribute's discriminator; numbered as in aaa_attr_values.h */
  uint8_t protocol;
  uint16_t tag;    /* groups the attributes of one tunnel, RFC 2868 section 3 */
  uint16_t flags;  /* AAA_ATTR_META_MANDATORY; other bits are carried as given */
  uint16_t client; /* client identifier, carried as given */
} aaa_attr_meta;

/* The attribute must be understood: the M bit of RFC 6733 section 4.1. 0x1, on big-endian hosts 0x8000. */
#define AAA_ATTR_META_MANDATORY AAA_FIRST_BIT

/* Producer client types that are valid to stamp on a record. 0 means none was given. */
#define AAA_ATTR_CLIENT_TYPE_MIN 1u
#define AAA_ATTR_CLIENT_TYPE_MAX 23u

/* How deep lists may nest below the outer list of a buffer before the decoders refuse it. */
#define AAA_ATTR_NESTING_MAX 128

/* A walker over a list or a flat buffer: see aaa_cursor.h. */
typedef struct aaa_cursor aaa_cursor;

AAA_END_DECLS

#endif
