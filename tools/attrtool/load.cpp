#include "load.h"

#include "explain_words.h"
#include "failure.h"
#include "text/json_reader.h"
#include "text/text_reader.h"

namespace attrtool {
namespace {

aaa_attr_fault fault_of(ByteSpan buffer, aaa_attr_reader reader, aaa_attr_cerrno *code) {
  aaa_attr_fault fault{};
  *code = aaa_attr_buffer_fault(buffer.data(), static_cast<std::uint32_t>(buffer.size()), reader, &fault);
  return fault;
}

// "reply.bin: byte 171: a block's used bytes must end within the buffer (flat buffer, AAA_ATTR_ERR_BAD_BUFFER)"
[[noreturn]] void refuse(const std::string &file, std::size_t byte, const char *rule, Form form, aaa_attr_cerrno code) {
  throw Refusal(file + ": byte " + std::to_string(byte) + ": " + rule + " (" + name_of(form) + ", " +
                aaa_attr_cerrno_name(code) + ")");
}

bool is_text(ByteSpan bytes) { return bytes.front() >= ' ' || bytes.front() == '\n' || bytes.front() == '\t'; }

Loaded decode(const std::string &file, Input input) {
  const std::span<std::uint8_t> buffer = input.bytes();
  const Form form = form_of(buffer);
  if (form.layout == Layout::kUnknown)
    throw Refusal(file + ": " + why_unknown(buffer) +
                  (is_text(buffer) ? "; if this is text that shows bytes in hexadecimal, give --hex" : ""));
  aaa_attr_cerrno code = 0;
  if (to_host_order(form, buffer) != 0) {
    const aaa_attr_fault fault = fault_of(buffer, AAA_ATTR_READER_NTOH, &code);
    refuse(file, input.skipped() + fault.offset, aaa_attr_rule_text(fault.rule), form, code);
  }
  const aaa_attr_fault fault = fault_of(buffer, AAA_ATTR_READER_LIST, &code);
  if (code != 0) refuse(file, input.skipped() + fault.offset, aaa_attr_rule_text(fault.rule), form, code);
  return {attrmgr::list::from_bytes(std::as_bytes(buffer)), name_of(form), buffer.size(), buffer.size() - fault.offset};
}

Loaded read_text(const std::string &file, ByteSpan bytes) {
  const std::string_view text(reinterpret_cast<const char *>(bytes.data()), bytes.size());
  const std::size_t begin = text.find_first_not_of(" \t\r\n");
  const bool json = begin != std::string_view::npos && text[begin] == '{';
  auto read = json ? attrtext::list_from_json(text) : attrtext::list_from_text(text);
  if (const auto *bad = std::get_if<attrtext::BadPlace>(&read)) throw Refusal(file + ":" + attrtext::to_string(*bad));
  return {std::get<attrmgr::list>(std::move(read)), json ? "JSON" : "text", bytes.size(), 0};
}

}  // namespace

Loaded load_buffer(const std::string &path, const Reading &reading) {
  return decode(shown_name(path), read_input(path, reading));
}

Loaded load_text(const std::string &path) {
  const Input input = read_input(path, {});
  if (!is_text(input.bytes()))
    throw Refusal(shown_name(path) + ": expected text or JSON, found a byte " +
                  "that begins no line; attrtool decode shows a buffer as text");
  return read_text(shown_name(path), input.bytes());
}

Loaded load(const std::string &path, const Reading &reading) {
  Input input = read_input(path, reading);
  if (!reading.hex && is_text(input.bytes())) return read_text(shown_name(path), input.bytes());
  return decode(shown_name(path), std::move(input));
}

attrtext::Secrets secrets(bool shown) { return shown ? attrtext::Secrets{} : attrtext::Secrets{is_opaque, true}; }

}  // namespace attrtool
