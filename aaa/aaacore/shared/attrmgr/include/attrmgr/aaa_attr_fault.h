/* aaa_attr_fault.h: why a buffer is refused. The calls of aaa_attr_marshal.h answer with one code; these say which rule
   the buffer breaks, and where. docs/malformed.md shows each rule at a buffer that breaks it. */
#ifndef ATTRMGR_AAA_ATTR_FAULT_H
#define ATTRMGR_AAA_ATTR_FAULT_H

#include <stdint.h>

#include <attrmgr/aaa_attr_types.h>
#include <attrmgr/aaa_export.h>

AAA_BEGIN_DECLS

/* The call that is to read the buffer. Each asks for something else. */
typedef enum aaa_attr_reader
#ifdef __cplusplus
    : int /* as wide as in C, where any number may be passed */
#endif
{ AAA_ATTR_READER_LIST = 1,     /* aaa_attr_buffer_to_list: flat and TLV buffers */
  AAA_ATTR_READER_IN_PLACE = 2, /* is_aaa_attr_buffer_valid, aaa_attr_buffer_scrub */
  AAA_ATTR_READER_HTON = 3,     /* aaa_attrs_buffer_tran_v1 from host form to network form */
  AAA_ATTR_READER_NTOH = 4      /* and back */
} aaa_attr_reader;

/* What a buffer may break. The number of a rule never changes; aaa_attr_rule_text has the rule itself. */
typedef enum aaa_attr_rule
#ifdef __cplusplus
    : int
#endif
{ AAA_ATTR_RULE_NONE = 0,
  AAA_ATTR_RULE_MARKER = 1,

  /* Blocks of a flat buffer */
  AAA_ATTR_RULE_FIRST_BLOCK = 2,
  AAA_ATTR_RULE_COUNTED_BLOCK = 3,
  AAA_ATTR_RULE_OWNED_LIST = 4,
  AAA_ATTR_RULE_BLOCK_HEADER = 5,
  AAA_ATTR_RULE_MAGIC = 6,
  AAA_ATTR_RULE_HEAD_FLAG = 7,
  AAA_ATTR_RULE_BLOCK_COUNT = 8,
  AAA_ATTR_RULE_NESTING = 9, /* of a TLV buffer as well */
  AAA_ATTR_RULE_ONE_LAYOUT = 10,
  AAA_ATTR_RULE_NATIVE_LAYOUT = 11,
  AAA_ATTR_RULE_USED_MIN = 12,
  AAA_ATTR_RULE_USED_MAX = 13,
  AAA_ATTR_RULE_BLOCK_ROOM = 14,
  AAA_ATTR_RULE_ONE_HEAD = 15,
  AAA_ATTR_RULE_LAST_FLAG = 16,
  AAA_ATTR_RULE_NEXT = 17,
  AAA_ATTR_RULE_GROUPED_FLAG = 18,
  AAA_ATTR_RULE_RECORD_COUNT = 19,

  /* Records of a flat buffer */
  AAA_ATTR_RULE_RECORD_HEADER = 20,
  AAA_ATTR_RULE_RECORD_META = 21,
  AAA_ATTR_RULE_RECORD_LENGTH = 22,
  AAA_ATTR_RULE_HANDLE_LENGTH = 23,
  AAA_ATTR_RULE_TEXT_LENGTH = 24,
  AAA_ATTR_RULE_TEXT_END = 25,
  AAA_ATTR_RULE_NUMBER_LENGTH = 26,
  AAA_ATTR_RULE_BOOLEAN_LENGTH = 27,

  /* TLV buffers */
  AAA_ATTR_RULE_TLV_TOTAL = 28,
  AAA_ATTR_RULE_TLV_TOTAL_MIN = 29,
  AAA_ATTR_RULE_TLV_TOTAL_MAX = 30,
  AAA_ATTR_RULE_TLV_RECORD = 31,
  AAA_ATTR_RULE_TLV_TYPE = 32,
  AAA_ATTR_RULE_TLV_META = 33,
  AAA_ATTR_RULE_TLV_LENGTH = 34,
  AAA_ATTR_RULE_TLV_EMPTY = 35,
  AAA_ATTR_RULE_TLV_FORMAT = 36,
  AAA_ATTR_RULE_TLV_ROOM = 37 } aaa_attr_rule;

typedef struct aaa_attr_fault {
  uint32_t rule;   /* AAA_ATTR_RULE_*: the first that the reader finds broken; AAA_ATTR_RULE_NONE: none is */
  uint32_t offset; /* in the buffer, its marker included: of the field that breaks the rule, or, for the end of a text,
                      of the byte; the buffer's length where something is missing there. Without a fault: of the first
                      byte after the outer list, which no reader looks at. */
} aaa_attr_fault;

/* Says what the reader would answer to the buffer, and why. Any bytes may be handed over; they are only read, and
   nothing is allocated.
   buffer: the bytes, the marker first.
   length: how many there are.
   reader: the call that is to read the buffer.
   fault: the rule that is broken, and where.
   AAA_ATTR_ERR_BAD_ARG: fault null; or there is nothing to read, since the buffer is null, its length 0 or the reader
   unknown: then the rule is AAA_ATTR_RULE_NONE.
   Codes of the reader for the buffer, and 0 where it takes it. */
AAA_API aaa_attr_cerrno aaa_attr_buffer_fault(const void *buffer, uint32_t length, aaa_attr_reader reader,
                                              aaa_attr_fault *fault) AAA_NOEXCEPT;

/* Returns the rule as a constant sentence, without a full stop: "a block must begin with the magic number 0xABCD".
   rule: AAA_ATTR_RULE_*; the sentence of AAA_ATTR_RULE_NONE, and of a number that is no rule, is empty.
   Owner: the library; the text is constant. */
AAA_API const char *aaa_attr_rule_text(uint32_t rule) AAA_NOEXCEPT;

AAA_END_DECLS

#endif
