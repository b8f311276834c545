// The rules for received buffers, in words.
#include <attrmgr/aaa_attr_fault.h>
#include <attrmgr/aaa_attr_types.h>

#include "aaa_attr/store/layout.h"

static_assert(attrmgr::kBlockSize - attrmgr::kHeaderSize == 488 &&
              attrmgr::kBlockSizeMax - attrmgr::kHeaderSize == 65'511);

// A macro's number as text.
#define TEXT_OF(number) #number
#define VALUE_OF(number) TEXT_OF(number)

const char *aaa_attr_rule_text(std::uint32_t rule) noexcept {
  switch (static_cast<aaa_attr_rule>(rule)) {
    case AAA_ATTR_RULE_NONE:
      break;
    case AAA_ATTR_RULE_MARKER:
      return "the marker must name a form that the reader takes";

    case AAA_ATTR_RULE_FIRST_BLOCK:
      return "the buffer must hold a block";
    case AAA_ATTR_RULE_COUNTED_BLOCK:
      return "a list must have as many blocks as its head counts";
    case AAA_ATTR_RULE_OWNED_LIST:
      return "each live Grouped record must have its nested list after the block";
    case AAA_ATTR_RULE_BLOCK_HEADER:
      return "a block's header must lie within the buffer";
    case AAA_ATTR_RULE_MAGIC:
      return "a block must begin with the magic number 0xABCD";
    case AAA_ATTR_RULE_HEAD_FLAG:
      return "the first block of a list must have the head flag";
    case AAA_ATTR_RULE_BLOCK_COUNT:
      return "a list's head must count a block at least, itself";
    case AAA_ATTR_RULE_NESTING:
      return "lists must nest at most " VALUE_OF(AAA_ATTR_NESTING_MAX) " levels below the outer one";
    case AAA_ATTR_RULE_ONE_LAYOUT:
      return "all blocks of a list must have the header layout of its first one";
    case AAA_ATTR_RULE_NATIVE_LAYOUT:
      return "a block that is read in place must have the header of 24 bytes";
    case AAA_ATTR_RULE_USED_MIN:
      return "a block's used bytes must cover its header";
    case AAA_ATTR_RULE_USED_MAX:
      return "a block's used bytes must end within the buffer";
    case AAA_ATTR_RULE_BLOCK_ROOM:
      return "a block's records must fit a block in memory: 488 bytes in the first of a list, 65,511 in a later one";
    case AAA_ATTR_RULE_ONE_HEAD:
      return "only the first block of a list may have the head flag";
    case AAA_ATTR_RULE_LAST_FLAG:
      return "the last block of a list must have the last flag";
    case AAA_ATTR_RULE_NEXT:
      return "`next` must be 0 in the last block of a list, and in no other";
    case AAA_ATTR_RULE_GROUPED_FLAG:
      return "a block with a live Grouped record must have the holds-grouped flag";
    case AAA_ATTR_RULE_RECORD_COUNT:
      return "a block's records must be as many as it counts and fill its used bytes";

    case AAA_ATTR_RULE_RECORD_HEADER:
      return "a record's header must lie within its block";
    case AAA_ATTR_RULE_RECORD_META:
      return "a record's meta must lie within its block";
    case AAA_ATTR_RULE_RECORD_LENGTH:
      return "a record's value must end within its block";
    case AAA_ATTR_RULE_HANDLE_LENGTH:
      return "a Grouped value must be a handle of 8 bytes";
    case AAA_ATTR_RULE_TEXT_LENGTH:
      return "a stored text must have a byte at least, its NUL";
    case AAA_ATTR_RULE_TEXT_END:
      return "a stored text must end in NUL";
    case AAA_ATTR_RULE_NUMBER_LENGTH:
      return "a Ulong or Enum value must have 4 bytes to be translated";
    case AAA_ATTR_RULE_BOOLEAN_LENGTH:
      return "a Boolean value must have 1 byte to be translated";

    case AAA_ATTR_RULE_TLV_TOTAL:
      return "the buffer must hold the total of its list";
    case AAA_ATTR_RULE_TLV_TOTAL_MIN:
      return "a list's total must count its own 4 bytes";
    case AAA_ATTR_RULE_TLV_TOTAL_MAX:
      return "a list's total must end within what contains the list";
    case AAA_ATTR_RULE_TLV_RECORD:
      return "a TLV record must have 12 bytes at least: type, meta length and length";
    case AAA_ATTR_RULE_TLV_TYPE:
      return "a TLV record's type must be one of the dictionary, and not 0";
    case AAA_ATTR_RULE_TLV_META:
      return "a TLV record's meta, and the length after it, must lie within the list";
    case AAA_ATTR_RULE_TLV_LENGTH:
      return "a TLV record's value must end within the list";
    case AAA_ATTR_RULE_TLV_EMPTY:
      return "a TLV record's value must have a byte at least";
    case AAA_ATTR_RULE_TLV_FORMAT:
      return "a TLV record's value must have a length that the format of its type allows";
    case AAA_ATTR_RULE_TLV_ROOM:
      return "an attribute must fit a block in memory: 65,511 bytes with its header, meta and NUL";
  }
  return "";
}
