// What there is to say of a buffer, before it becomes text, JSON or a page: sections of fields, one for each byte, and
// what each reader answers. The library names the fields and the faults; here they get their words.
#pragma once

#include <attrmgr/attrmgr.h>

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "form.h"

namespace attrtool {

// A buffer as it is, and as its readers get it: that of a host of the other byte order, if it is TLV, is turned before,
// each field in its place. Flat buffers in network form have readers of their own.
class Capture {
 public:
  explicit Capture(ByteSpan bytes);

  ByteSpan bytes() const { return bytes_; }
  ByteSpan readable() const { return turned_.empty() ? bytes_ : turned_; }
  Form form() const { return form_; }
  bool in_network_form() const { return form_.other_order && form_.layout != Layout::kTlv; }

  // The reader that leads through the fields.
  aaa_attr_reader leading_reader() const { return in_network_form() ? AAA_ATTR_READER_NTOH : AAA_ATTR_READER_LIST; }

 private:
  ByteSpan bytes_;
  Form form_;
  std::vector<std::uint8_t> turned_;
};

struct Field {
  std::uint32_t offset, size;
  std::uint32_t missing;  // bytes of it that are not there
  std::string name;       // "used bytes"
  std::string meaning;    // "72"
  bool hidden = false;    // its bytes are a secret's
};

enum class SectionKind { kMarker, kBlock, kRecord, kList, kUnread };

// A block's header, a record, a TLV list's total: what has a title of its own.
struct Section {
  SectionKind kind;
  unsigned depth;  // 0 for the outer list
  std::string title;
  std::vector<Field> fields;

  std::uint32_t offset() const { return fields.front().offset; }
  std::uint32_t end() const { return fields.back().offset + fields.back().size; }
};

// What a reader answers to the buffer.
struct Verdict {
  const char *reader;  // "list"
  const char *words;   // "as a list"
  aaa_attr_cerrno code;
  aaa_attr_fault fault;

  bool decides = false;  // whether the buffer can be decoded; the others ask for more

  bool accepted() const { return code == 0; }
};

// What is in a buffer, as far as it was read.
struct Counts {
  std::uint32_t lists = 0, blocks = 0, records = 0, removed = 0;
};

struct Explanation {
  ByteSpan bytes;
  std::string form;  // "flat buffer in network form"
  std::vector<Section> sections;
  std::vector<Verdict> verdicts;  // the first is that of the reader that led through the fields
  Counts counts;

  // The field that a byte is part of; null for the buffer's end.
  const Field *field_at(std::uint32_t offset) const;
};

// A buffer of at least its marker. Secrets: values of opaque types and whatever LI attributes hold, which are hidden
// unless they are asked for.
Explanation explain(const Capture &capture, bool show_secrets);

// The answers alone.
std::vector<Verdict> verdicts_of(const Capture &capture);

// Calls take(field, context) for each field.
void read_fields(const Capture &capture, aaa_attr_field_callback take, void *context);

// The first answer that keeps the buffer from being decoded, or, if strict, that refuses it at all; null for a good
// one.
const Verdict *refusal_of(const std::vector<Verdict> &verdicts, bool strict = false);

// The name of the field at a byte; "the end" where there is none.
std::string place_name(const Field *field);

// "byte 171 (used bytes): a block's used bytes must end within the buffer".
std::string fault_text(const aaa_attr_fault &fault, const std::string &place);

}  // namespace attrtool
