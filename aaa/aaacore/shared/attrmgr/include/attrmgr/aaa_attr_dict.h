/* aaa_attr_dict.h: what the dictionary knows of the attribute types. Constant data, readable from any thread.

   type    the number of an attribute type, AAA_ATTR_TYPE_* of aaa_attr_names.h
   format  a format, AAA_ATTR_FMT_* */
#ifndef ATTRMGR_AAA_ATTR_DICT_H
#define ATTRMGR_AAA_ATTR_DICT_H

#include <stdint.h>

#include <attrmgr/aaa_attr_types.h>
#include <attrmgr/aaa_export.h>

AAA_BEGIN_DECLS

#define AAA_ATTR_TYPE_COUNT 623 /* types are below; 0 stands for no attribute */

/* Value formats: how the value of a type is stored and how long it is. */
#define AAA_ATTR_FMT_INVALID 0            /* of a number that is no type */
#define AAA_ATTR_FMT_STRING 1             /* text; a NUL is stored after it and not counted in lengths */
#define AAA_ATTR_FMT_BINARY 2             /* any bytes */
#define AAA_ATTR_FMT_ULONG 3              /* unsigned 32-bit number, host byte order */
#define AAA_ATTR_FMT_ULONGLONG 4          /* a 64-bit quantity as the client wrote it */
#define AAA_ATTR_FMT_GROUPED 5            /* the handle of a sub-list, 8 bytes */
#define AAA_ATTR_FMT_ENUM 6               /* unsigned 32-bit value number, named by the type's value table */
#define AAA_ATTR_FMT_IPV4 7               /* 4 bytes, network order */
#define AAA_ATTR_FMT_IPV6 8               /* 16 bytes, network order */
#define AAA_ATTR_FMT_ADDRESS 9            /* 4 or 16 bytes, network order */
#define AAA_ATTR_FMT_STRING_ATTR 10       /* text; the stored NUL is counted in lengths */
#define AAA_ATTR_FMT_UTC 11               /* signed 64-bit seconds since the Unix epoch, host byte order */
#define AAA_ATTR_FMT_BOOLEAN 12           /* 1 byte */
#define AAA_ATTR_FMT_OPAQUE 13            /* any bytes, never shown */
#define AAA_ATTR_FMT_SPECIAL 14           /* any bytes, never shown */
#define AAA_ATTR_FMT_IPX_NETWORK 15       /* any bytes; no type of the dictionary has it */
#define AAA_ATTR_FMT_DIAMETER_IDENTITY 20 /* RFC 6733, section 4.3.1 */
#define AAA_ATTR_FMT_IP_FILTER_RULE 21    /* RFC 6733, section 4.3.1 */
#define AAA_ATTR_FMT_QOS_FILTER_RULE 22   /* RFC 4005, section 4.1 */

/* Type flags. */
#define AAA_ATTR_TYPE_OPAQUE 0x4u    /* a secret: displays do not show the value */
#define AAA_ATTR_TYPE_NO_AUTHOR 0x8u /* the type has no authorization bitmap */

/* Returns the format of a type; 0 for a number that is no type. */
AAA_API uint32_t aaa_attr_get_format_from_type(uint32_t type) AAA_NOEXCEPT;

/* Returns the name of a type; "Unknown AAA Attribute" for a number that is no type.
   Owner: the library; constant text. */
AAA_API const char *aaa_attr_get_name_from_type(uint32_t type) AAA_NOEXCEPT;

/* Returns the type of a name, compared byte for byte; the lower type where two share a name; 0 for an unknown name.
   name: the name of a type; null has no type. */
AAA_API uint32_t aaa_attr_get_type_from_name(const char *name) AAA_NOEXCEPT;

/* Returns the name of a format; "<unknown>" for a number that is no format.
   Owner: the library; constant text. */
AAA_API const char *aaa_attr_get_format_string(uint32_t format) AAA_NOEXCEPT;

/* Returns the name of a value of an Enum type; null when it has none, or for any other type.
   value: the number of the value.
   Owner: the library; constant text. */
AAA_API const char *aaa_attr_get_enum_name_from_type(uint32_t type, uint32_t value) AAA_NOEXCEPT;

/* Finds the value of an Enum type by its name.
   name: the name, compared byte for byte.
   value: the value that has it; the lowest where a name comes back.
   AAA_ATTR_ERR_BAD_ARG: name or value null. AAA_ATTR_ERR_NOT_FOUND: no value has the name, or the type is no Enum. */
AAA_API aaa_attr_cerrno aaa_attr_get_value_from_enum_name(uint32_t type, const char *name,
                                                          uint32_t *value) AAA_NOEXCEPT;

/* Returns the name of an interface type; "unknown" for a number above 43.
   value: the interface type, 0 to 43.
   Owner: the library; constant text. */
AAA_API const char *aaa_attr_get_interface_from_type(uint32_t value) AAA_NOEXCEPT;

/* LI attributes, types 288 to 293, are left out of every display while the debug-LI flag is 0, as it is at first. The
   flag is one for the process and is the client's to serialise.
   on: 0 to leave them out, any other number to show them. */
AAA_API void aaa_attr_set_debug_li(uint32_t on) AAA_NOEXCEPT;

/* Returns 1 for an LI type, whatever the flag; else 0. */
AAA_API int aaa_attr_is_attr_type_li(uint32_t type) AAA_NOEXCEPT;

/* Returns 1 when text begins with the name of an LI type and "=", and the flag is 0: text to be left out. Else 0.
   text: a line about to be shown. */
AAA_API int aaa_attr_is_li_attr(const char *text) AAA_NOEXCEPT;

AAA_END_DECLS

#endif
