/* aaa_attr_marshal.h: lists as bytes. A flat buffer (the list's blocks after a marker byte, fast and readable in
   place), a TLV buffer (one type-length-value record an attribute), a gather list, and the byte order of flat buffers.

   docs/layout.md describes the bytes. Handles and addresses inside a buffer mean nothing to a receiver; no call follows
   them. Calls that are given a length may be handed any bytes. Calls that are given none trust the buffer's block
   lengths and stay inside the used bytes of each block.

   list     the handle of a list
   buffer   the first byte of the buffer, its marker
   length  the bytes of the buffer */
#ifndef ATTRMGR_AAA_ATTR_MARSHAL_H
#define ATTRMGR_AAA_ATTR_MARSHAL_H

#include <stdint.h>

#include <attrmgr/aaa_attr_types.h>
#include <attrmgr/aaa_export.h>

AAA_BEGIN_DECLS

/* The first byte of a buffer tells its form. */
#define AAA_MARSHAL_BUFFER 1 /* flat; the receiver takes 0 for flat as well */
#define AAA_MARSHAL_TLV 2

/* ---- Writing flat buffers ---- */

/* Measures the list's flat buffer as the list stands, removed attributes included. The second form drops those from the
   list first.
   size: the bytes of the buffer.
   AAA_ATTR_ERR_BAD_ARG: size null.
   AAA_ATTR_ERR_BAD_FORMAT: a Grouped attribute whose value is not a handle, or more than 2^32 - 1 bytes.
   Codes of the handles, sub-lists' included. */
AAA_API aaa_attr_cerrno aaa_attr_list_buffer_len(aaa_attr_list_handle list, uint32_t *size) AAA_NOEXCEPT;
AAA_API aaa_attr_cerrno aaa_attr_list_buffer_coalesce_and_get_len(aaa_attr_list_handle list,
                                                                  uint32_t *size) AAA_NOEXCEPT;

/* Writes the list with all its sub-lists as a flat buffer. v1 first drops removed attributes from the list, even where
   it then fails (sub-lists are written as they stand).
   buffer: where to write; null to ask for the size.
   size: in, the capacity of buffer; out, the bytes written, or the size needed.
   AAA_ATTR_ERR_BAD_FORMAT: buffer null or too small, *size is the size needed and nothing is written; or the list
   cannot be measured, its handle refused for one, *size is 0.
   Codes of the handle, from v1 only, *size as it was.
   AAA_ATTR_ERR_BAD_ARG: size null; v1 looks at the handle first. */
AAA_MUST_CHECK aaa_attr_cerrno aaa_attr_list_to_buffer(aaa_attr_list_handle list, void *buffer,
                                                       uint32_t *size) AAA_NOEXCEPT;
AAA_MUST_CHECK aaa_attr_cerrno aaa_attr_list_to_buffer_v1(aaa_attr_list_handle list, void *buffer,
                                                          uint32_t *size) AAA_NOEXCEPT;

/* ---- TLV buffers ---- */

/* Measures the list's TLV buffer.
   size: the bytes of the records in TLV form; the buffer needs 5 more.
   AAA_ATTR_ERR_BAD_ARG: size null. AAA_ATTR_ERR_BAD_FORMAT: the buffer would pass 2^32 - 1 bytes.
   Codes of the handles. */
AAA_API aaa_attr_cerrno aaa_attr_list_tlv_buffer_len(aaa_attr_list_handle list, uint32_t *size) AAA_NOEXCEPT;

/* Writes the list as a TLV buffer: live attributes only, without producer client types.
   buffer: where to write; null to ask for the size.
   size: in, the capacity of buffer; out, the bytes written, or the size needed.
   AAA_ATTR_ERR_BAD_ARG: size null.
   AAA_ATTR_ERR_BAD_FORMAT: buffer null or too small, *size is the size needed; or more than 2^32 - 1 bytes, *size is 0.
   Codes of the handles, sub-lists' included, *size as it was. */
AAA_MUST_CHECK aaa_attr_cerrno aaa_attr_list_tlv_to_buffer(aaa_attr_list_handle list, void *buffer,
                                                           uint32_t *size) AAA_NOEXCEPT;

/* ---- Reading buffers ---- */

/* Builds a list from a flat or TLV buffer of length bytes, by its marker. Bytes after the outer list are ignored. A
   refused buffer leaves nothing behind.
   list: the handle of the list; 0 when decoding failed.
   Owner: the caller, until aaa_attr_list_free.
   AAA_ATTR_ERR_BAD_ARG: null, length 0 (*list as it was), or an unknown marker.
   AAA_ATTR_ERR_NO_MEMORY: an allocation failed (*list as it was when it was the first).
   AAA_ATTR_ERR_BAD_BUFFER: a flat buffer is cut short or does not hold together; lists nest deeper than
   AAA_ATTR_NESTING_MAX. AAA_ATTR_ERR_BAD_LENGTH: the same for a TLV buffer.
   AAA_ATTR_ERR_NOT_FOUND: a TLV record of type 0, or of one that the dictionary does not have.
   AAA_ATTR_ERR_BAD_ARG: a TLV record's value does not suit its type, or is too long for a block.
   Codes of the handle, where the handle table does not know a list that it has just named. */
AAA_MUST_CHECK aaa_attr_cerrno aaa_attr_buffer_to_list(const void *buffer, uint32_t length,
                                                       aaa_attr_list_handle *list) AAA_NOEXCEPT;

/* Copies out the first value of the type in a flat buffer, sub-lists and removed attributes included, as it is stored
   (a String with its NUL).
   type: the type sought.
   format: the format of the value, AAA_ATTR_FMT_*.
   value: where to copy it.
   size: in, the capacity of value; out, the bytes copied.
   AAA_ATTR_ERR_BAD_ARG: null, *size 0, or not a flat buffer.
   AAA_ATTR_ERR_NO_MEMORY: no such type; not a proper first block; value too small, then *size is 0. */
AAA_API aaa_attr_cerrno aaa_attr_get_from_buffer(const void *buffer, uint32_t type, uint32_t *format, void *value,
                                                 uint32_t *size) AAA_NOEXCEPT;

/* Prints the attributes of a flat buffer, nested lists too, to the standard output. */
AAA_API void aaa_attr_list_buffer_print(const void *buffer) AAA_NOEXCEPT;

/* Returns 1 when this is a flat buffer whose first block has the 16-byte header of the foreign layout, else 0. */
AAA_API int aaa_attr_buffer_is_alien(const void *buffer, uint32_t length) AAA_NOEXCEPT;

/* Returns 1 when every call that is told no length may be used on the flat buffer, and all of them see the records that
   the decoder sees; else 0.
   code: 0 or the reason, one of these.
   AAA_ATTR_ERR_BAD_ARG: null, length 0, or not marked as a flat buffer. AAA_ATTR_ERR_BAD_BUFFER: what the decoder
   refuses; the foreign layout; `next` is not zero exactly in the last block of each list. */
AAA_API int is_aaa_attr_buffer_valid(const void *buffer, uint32_t length, aaa_attr_cerrno *code) AAA_NOEXCEPT;

/* Takes the sender's addresses out of a valid flat buffer, in place, for a buffer that leaves the machine: `next`
   becomes 0 or 1, Grouped values and reserved bytes 0. The buffer is unchanged on failure.
   Codes of is_aaa_attr_buffer_valid. */
AAA_MUST_CHECK aaa_attr_cerrno aaa_attr_buffer_scrub(void *buffer, uint32_t length) AAA_NOEXCEPT;

/* ---- Byte order ----

   Flat buffers are written in the host's byte order. A buffer that may reach a host of the other order is translated to
   network form (big-endian integers, flag bits from the top down), and to host form where it arrives. It does not tell
   which form it is in, but a buffer that is not in the form that it should be in is refused: a little-endian host
   refuses a second translation in the same direction. A big-endian host has its buffers in network form, and changes
   nothing. */
typedef enum cdm_endian_tran_type
#ifdef __cplusplus
    : int /* as wide as in C, where any number may be passed */
#endif
{ CDM_ENDIAN_TRAN_HTON = 1, /* host form to network form */
  CDM_ENDIAN_TRAN_NTOH = 2  /* network form to host form */
} cdm_endian_tran_type;

/* Translates a flat buffer in place. Ulong and Enum values are translated; other values, the handles of sub-lists among
   them, travel as they are. A refused buffer is unchanged. v1 and v2 are told the buffer's length. v2 translates
   Ulonglong and UTC values of 8 bytes, too: only between peers that both call it, since the buffer does not tell.
   A buffer whose first block counts no blocks is left as it is, with 0.
   direction: to network form before the buffer leaves, to host form where it arrives.
   AAA_ATTR_ERR_BAD_ARG: null, an unknown direction, or not marked as a flat buffer (v1, v2: length 0).
   AAA_ATTR_ERR_BAD_BUFFER: the buffer does not hold together in the form that it should be in (v1, v2: within length),
   or the blocks of a list differ in their layout. */
AAA_MUST_CHECK aaa_attr_cerrno aaa_attrs_buffer_tran(char *buffer, cdm_endian_tran_type direction) AAA_NOEXCEPT;
AAA_MUST_CHECK aaa_attr_cerrno aaa_attrs_buffer_tran_v1(char *buffer, uint32_t length,
                                                        cdm_endian_tran_type direction) AAA_NOEXCEPT;
AAA_MUST_CHECK aaa_attr_cerrno aaa_attrs_buffer_tran_v2(char *buffer, uint32_t length,
                                                        cdm_endian_tran_type direction) AAA_NOEXCEPT;

/* ---- Gather list ---- */

/* Bytes of a list's flat form: 16 bytes on every host. On a host with 64-bit addresses POSIX's struct iovec has the
   same layout; on one with 32-bit addresses its entries are to be written from these. */
typedef struct aaa_attr_array_entry {
  AAA_POINTER(const void, base);
  uint64_t length;
} aaa_attr_array_entry;

/* Describes the list's flat buffer as entries for a vectored write: first the marker byte, then the list's own blocks
   and those of its sub-lists. They hold until the list changes.
   array: an array of the caller's, or where the address of an allocated one is put.
   count: in, the capacity of *array, or 0 to have an array allocated; out, the entries written.
   Owner: the caller, of the array: free releases it. The list, of the bytes.
   AAA_ATTR_ERR_BAD_ARG: count null; array null, *array null beside a capacity, or the capacity too small: then *count
   is the number needed. AAA_ATTR_ERR_NO_MEMORY: no array. AAA_ATTR_ERR_BAD_FORMAT: a Grouped attribute whose value is
   not a handle, or more than 2^32 - 1 entries. Codes of the handles, sub-lists' included, looked at before array. */
AAA_MUST_CHECK aaa_attr_cerrno aaa_attr_list_to_array(aaa_attr_list_handle list, aaa_attr_array_entry **array,
                                                      uint32_t *count) AAA_NOEXCEPT;

/* ---- IPv6 prefix values ----

   RFC 3162, section 2.3: a reserved byte, the prefix length, the prefix.

   address  the 16 bytes of an IPv6 address
   value    the AAA_IPV6_PREFIX_SIZE bytes of a prefix value */

#define AAA_IPV6_ADDRESS_SIZE 16 /* bytes of an address */
#define AAA_IPV6_PREFIX_SIZE 18  /* bytes of a value; its prefix field is always 16 bytes here */

/* Packs an address and a prefix length.
   prefix_length: in bits; its low 8 bits are stored, unchecked. */
AAA_API void aaa_attr_encode_ipv6_prefix(const uint8_t *address, int32_t prefix_length, uint8_t *value) AAA_NOEXCEPT;

/* Unpacks a prefix value. Bits beyond the prefix length are cleared in the address and, those of the last prefix byte,
   in the value itself.
   prefix_length: in bits; 0 on failure.
   AAA_ATTR_ERR_BAD_ARG: null, or a prefix length above 128. */
AAA_API aaa_attr_cerrno aaa_attr_decode_ipv6_prefix(uint8_t *value, uint8_t *address,
                                                    uint8_t *prefix_length) AAA_NOEXCEPT;

/* Writes the text form of an address, as ipv6_address_to_string of aaa_platform.h does.
   text: at least AAA_IPV6_TEXT_SIZE bytes.
   Returns text.
   Owner: the caller, as before. */
AAA_API char *aaa_attr_ipv6_address_to_string(const uint8_t *address, char *text) AAA_NOEXCEPT;

AAA_END_DECLS

#endif
