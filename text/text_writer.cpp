#include "text_writer.h"

#include <ostream>

#include "meta_flags.h"
#include "values.h"

namespace attrtext {
namespace {

void append_word(const char *key, const std::string &value, std::string *to) {
  if (!to->ends_with('[')) *to += ' ';
  *to += key;
  *to += value;
}

// The name of a service or protocol, or its number.
std::string name_of(const aaa_attr_value_table &table, std::uint8_t number) {
  return number < table.count ? table.names[number] : std::to_string(number);
}

void append_meta(const attrmgr::meta &meta, std::string *to) {
  constexpr attrmgr::meta kZeros;
  if (meta.service != 0) append_word("service=", name_of(value_service, meta.service), to);
  if (meta.protocol != 0) append_word("protocol=", name_of(value_protocol, meta.protocol), to);
  if (meta.tag != 0 || meta == kZeros) append_word("tag=", std::to_string(meta.tag), to);
  if ((meta.flags & AAA_ATTR_META_MANDATORY) != 0) append_word("mandatory", "", to);
  if (const unsigned others = written_flags(meta.flags) & ~kWrittenMandatory; others != 0)
    append_word("flags=", std::to_string(others), to);
  if (meta.client != 0) append_word("client=", std::to_string(meta.client), to);
}

class Writer {
 public:
  Writer(const Secrets &secrets, std::ostream &out) : secrets_(secrets), out_(out) {}

  // Levels are as many as the decoders allow, so that the stack is enough.
  void write(attrmgr::list_view list, std::size_t depth) {
    for (const attrmgr::attribute attribute : list) {
      if (secrets_.hides(attribute.type())) continue;
      begin_line(depth);
      line_ += name_for_text(attribute.type());
      append_note(attribute, &line_);
      line_ += " = ";
      if (attribute.has_group()) {
        line_ += '{';
        end_line();
        write(attribute.value<attrmgr::list_view>(), depth + 1);
        begin_line(depth);
        line_ += '}';
      } else {
        append_value(attribute, secrets_, &line_);
      }
      end_line();
    }
  }

 private:
  void begin_line(std::size_t depth) { line_.assign(2 * depth, ' '); }
  void end_line() {
    line_ += '\n';
    out_.write(line_.data(), static_cast<std::streamsize>(line_.size()));
  }

  const Secrets &secrets_;
  std::ostream &out_;
  std::string line_;
};

}  // namespace

void write_text(attrmgr::list_view list, const Secrets &secrets, std::ostream &out) {
  Writer(secrets, out).write(list, 0);
}

std::string name_for_text(std::uint32_t type) {
  const char *name = aaa_attr_get_name_from_type(type);
  return aaa_attr_get_type_from_name(name) == type ? name : std::to_string(type);
}

void append_note(const attrmgr::attribute &attribute, std::string *to) {
  const auto meta = attribute.meta();
  const std::uint32_t producer = attribute.producer_client_type();
  if (!meta && producer == 0) return;
  *to += " [";
  if (meta) append_meta(*meta, to);
  if (producer != 0) append_word("producer=", std::to_string(producer), to);
  *to += ']';
}

void append_value(const attrmgr::attribute &attribute, const Secrets &secrets, std::string *to) {
  if (secrets.hides_value(attribute.type())) {
    *to += kOpaqueValue;
  } else {
    append_value(attribute.type(), attribute.bytes(), to);
  }
}

}  // namespace attrtext
