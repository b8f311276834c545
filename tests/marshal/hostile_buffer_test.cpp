// Buffers that do not hold together: every reader refuses them, reads nothing behind them and leaves nothing behind.
#include <attrmgr/attrmgr.h>
#include <gtest/gtest.h>

#include "support/flat_rules.h"
#include "support/malformed.h"

namespace {

Bytes flipped(Bytes buffer, std::size_t bit) {
  buffer[bit / 8] = static_cast<std::uint8_t>(buffer[bit / 8] ^ 1u << bit % 8);
  return buffer;
}

// The decoder's answer. A list that it makes is sound, and survives being written and read again.
aaa_attr_cerrno decode_soundly(const Bytes &buffer) {
  aaa_attr_list_handle handle = 77;
  const aaa_attr_cerrno code = aaa_attr_buffer_to_list(buffer.data(), size_of(buffer), &handle);
  if (code != 0) {
    EXPECT_EQ(handle, 0u);
    return code;
  }
  const List list(handle);
  List again;
  aaa_attr_cerrno reason;
  EXPECT_TRUE(is_aaa_attr_list_valid(list, &reason));
  EXPECT_EQ(decode(buffer[0] == AAA_MARSHAL_TLV ? tlv_buffer(list) : flat_buffer(list), &again), 0u);
  EXPECT_EQ(outline(again), outline(list));
  return code;
}

aaa_attr_cerrno check(const Bytes &buffer) {
  aaa_attr_cerrno code = 77;
  const int valid = is_aaa_attr_buffer_valid(buffer.data(), size_of(buffer), &code);
  EXPECT_EQ(valid, code == 0 ? 1 : 0);
  Bytes copy = buffer;
  EXPECT_EQ(aaa_attr_buffer_scrub(copy.data(), size_of(copy)), code);
  EXPECT_TRUE(code == 0 || copy == buffer);
  return code;
}

// The answer of the translation. It is all or nothing, and the way back restores every byte. Of a list of no blocks
// there is nothing to translate, there or back.
aaa_attr_cerrno translate(const Bytes &buffer, cdm_endian_tran_type direction = CDM_ENDIAN_TRAN_HTON) {
  Bytes copy = buffer;
  char *bytes = reinterpret_cast<char *>(copy.data());
  const aaa_attr_cerrno code = aaa_attrs_buffer_tran_v1(bytes, size_of(copy), direction);
  if (code == 0 && copy != buffer) {
    const auto back = direction == CDM_ENDIAN_TRAN_HTON ? CDM_ENDIAN_TRAN_NTOH : CDM_ENDIAN_TRAN_HTON;
    EXPECT_EQ(aaa_attrs_buffer_tran_v1(bytes, size_of(copy), back), 0u);
  }
  EXPECT_EQ(copy, buffer);
  return code;
}

// A copy of the cursor's attributes that nest no list.
std::string copied(aaa_cursor *cursor) {
  List copies;
  while (aaa_cursor_get_next(cursor) != 0)
    if (!aaa_cursor_grouped(cursor)) aaa_cursor_list_add_attr(copies, cursor);
  aaa_cursor_free(cursor);
  return outline(copies);
}

// What the check accepts may be given to every call that is told no length: they see what the decoder saw.
void read_in_place(const Bytes &buffer) {
  List list;
  ASSERT_EQ(decode(buffer, &list), 0u);
  aaa_cursor *in_buffer = nullptr, *in_list = nullptr;
  aaa_cursor_alloc_from_buffer(buffer.data(), &in_buffer);
  aaa_cursor_alloc(list, &in_list);
  EXPECT_EQ(copied(in_buffer), copied(in_list));

  testing::internal::CaptureStdout();
  aaa_attr_list_buffer_print(buffer.data());
  EXPECT_NE(testing::internal::GetCapturedStdout(), "");

  Bytes copy = buffer;
  EXPECT_EQ(aaa_attr_buffer_scrub(copy.data(), size_of(copy)), 0u);
  List scrubbed;
  EXPECT_EQ(decode(copy, &scrubbed), 0u);
  EXPECT_EQ(check(copy), 0u);
  EXPECT_EQ(outline(scrubbed), outline(list));
}

// Decoder, check and translation answer as the rules say, whatever the buffer.
void expect_by_the_rules(const Bytes &buffer) {
  const flat_rules::Reading translating(buffer.data(), buffer.size(), flat_rules::For::kTranslation);
  EXPECT_EQ(translate(buffer), translating.translatable() ? 0 : AAA_ATTR_ERR_BAD_BUFFER);
  const flat_rules::Reading reading(buffer.data(), buffer.size());
  EXPECT_EQ(decode_soundly(buffer), reading.decodable() ? 0 : AAA_ATTR_ERR_BAD_BUFFER);
  EXPECT_EQ(check(buffer), reading.valid() ? 0 : AAA_ATTR_ERR_BAD_BUFFER);
  if (reading.valid()) read_in_place(buffer);
}

TEST(Hostile, Table) {
  for (const malformed::Section &section : malformed::sections())
    for (const malformed::Case &row : section.cases) {
      SCOPED_TRACE(std::string(section.title) + ": " + row.what);
      EXPECT_EQ(decode_soundly(row.buffer), row.decode);
      EXPECT_EQ(check(row.buffer), row.check);
      EXPECT_EQ(translate(row.buffer, section.direction), row.translate);
      if (row.buffer[0] == AAA_MARSHAL_BUFFER) expect_by_the_rules(row.buffer);
    }
}

TEST(Hostile, CutAtEveryLength) {
  for (const char *golden : {golden::kForeign, golden::kNested, golden::kTlvNested}) {
    const Bytes buffer = hex(golden);
    for (std::size_t size = 2; size < buffer.size(); ++size) {
      SCOPED_TRACE(size);
      const Bytes cut = head_of(buffer, size);
      const bool flat = cut[0] == AAA_MARSHAL_BUFFER;
      EXPECT_EQ(decode_soundly(cut), flat ? AAA_ATTR_ERR_BAD_BUFFER : AAA_ATTR_ERR_BAD_LENGTH);
      EXPECT_EQ(check(cut), flat ? AAA_ATTR_ERR_BAD_BUFFER : AAA_ATTR_ERR_BAD_ARG);
      EXPECT_EQ(translate(cut), flat ? AAA_ATTR_ERR_BAD_BUFFER : AAA_ATTR_ERR_BAD_ARG);
    }
  }
}

TEST(Hostile, EveryBitFlip) {
  for (const char *golden : {golden::kForeign, golden::kNested, golden::kTlvNested}) {
    const Bytes buffer = hex(golden);
    for (std::size_t bit = 8; bit < buffer.size() * 8; ++bit) {
      SCOPED_TRACE("byte " + std::to_string(bit / 8) + " bit " + std::to_string(bit % 8));
      const Bytes bytes = flipped(buffer, bit);
      if (bytes[0] == AAA_MARSHAL_BUFFER) {
        expect_by_the_rules(bytes);
      } else {
        decode_soundly(bytes);
      }
    }
  }
}

}  // namespace
