// Buffers that do not hold together: every reader refuses them, reads nothing past their end and leaves nothing behind.
#include <attrmgr/attrmgr.h>
#include <gtest/gtest.h>

#include <set>
#include <tuple>

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
  while (aaa_cursor_get_next(cursor) != 0) {
    if (!aaa_cursor_grouped(cursor)) (void)aaa_cursor_list_add_attr(copies, cursor);  // not an unknown one
  }
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

std::string text_of(const aaa_attr_fault &fault) {
  return "byte " + std::to_string(fault.offset) + ": " + aaa_attr_rule_text(fault.rule);
}

// Decoder, check and translation answer as the rules say, whatever the buffer.
void expect_by_the_rules(const Bytes &buffer) {
  const auto answer = [&buffer](aaa_attr_reader reader) {
    const flat_rules::Reading reading(buffer.data(), buffer.size(), reader);
    const aaa_attr_cerrno code = reading.accepted() ? 0 : AAA_ATTR_ERR_BAD_BUFFER;
    aaa_attr_fault fault;
    EXPECT_EQ(aaa_attr_buffer_fault(buffer.data(), size_of(buffer), reader, &fault), code);
    EXPECT_EQ(text_of(fault), text_of(reading.fault())) << "to reader " << reader;
    return code;
  };
  EXPECT_EQ(translate(buffer), answer(AAA_ATTR_READER_HTON));
  EXPECT_EQ(decode_soundly(buffer), answer(AAA_ATTR_READER_LIST));
  const aaa_attr_cerrno valid = answer(AAA_ATTR_READER_IN_PLACE);
  EXPECT_EQ(check(buffer), valid);
  if (valid == 0) read_in_place(buffer);
}

// Where a big-endian host's buffers are in network form, it is the other rows that say what else refuses them.
bool only_translated(const malformed::Section &section) {
  return kBigEndianHost && section.direction == CDM_ENDIAN_TRAN_NTOH;
}

TEST(Hostile, Table) {
  for (const malformed::Section &section : malformed::sections())
    for (const malformed::Case &row : section.cases) {
      SCOPED_TRACE(std::string(section.title) + ": " + row.what);
      EXPECT_EQ(translate(row.buffer, section.direction), row.translate);
      if (only_translated(section)) continue;
      EXPECT_EQ(decode_soundly(row.buffer), row.decode);
      EXPECT_EQ(check(row.buffer), row.check);
      if (row.buffer[0] == AAA_MARSHAL_BUFFER) expect_by_the_rules(row.buffer);
    }
}

// Each row's rule and its place are named by whoever refuses the buffer, and by nobody else.
TEST(Hostile, TheRuleIsNamed) {
  for (const malformed::Section &section : malformed::sections())
    for (const malformed::Case &row : section.cases) {
      const std::tuple<char, aaa_attr_reader, aaa_attr_cerrno> readers[] = {
          {'D', AAA_ATTR_READER_LIST, row.decode},
          {'V', AAA_ATTR_READER_IN_PLACE, row.check},
          {'T', section.direction == CDM_ENDIAN_TRAN_HTON ? AAA_ATTR_READER_HTON : AAA_ATTR_READER_NTOH,
           row.translate}};
      for (const auto &[who, reader, expected] : readers) {
        if (who != 'T' && only_translated(section)) continue;
        SCOPED_TRACE(std::string(section.title) + ": " + row.what + ", to " + who);
        aaa_attr_fault fault;
        EXPECT_EQ(aaa_attr_buffer_fault(row.buffer.data(), size_of(row.buffer), reader, &fault), expected);
        if (expected != 0) {
          EXPECT_EQ(text_of(fault), text_of(row.fault_to(who)));
        } else {
          EXPECT_EQ(fault.rule, AAA_ATTR_RULE_NONE);
        }
      }
    }
}

TEST(Hostile, FaultOfNothing) {
  const Bytes buffer = golden_buffer(golden::kNested);
  const std::uint8_t kTlv = AAA_MARSHAL_TLV;
  aaa_attr_fault fault = {77, 77};
  EXPECT_EQ(aaa_attr_buffer_fault(buffer.data(), size_of(buffer), AAA_ATTR_READER_LIST, nullptr), AAA_ATTR_ERR_BAD_ARG);
  const std::tuple<const char *, const std::uint8_t *, std::uint32_t, int> rows[] = {
      {"no buffer", nullptr, 1, AAA_ATTR_READER_LIST},
      {"no bytes", buffer.data(), 0, AAA_ATTR_READER_LIST},
      {"no reader", buffer.data(), size_of(buffer), 0},
      {"none that is known", buffer.data(), size_of(buffer), 5},
      {"none that is known, and not a flat buffer", &kTlv, 1, 5},
  };
  for (const auto &[what, bytes, length, reader] : rows) {
    EXPECT_EQ(aaa_attr_buffer_fault(bytes, length, static_cast<aaa_attr_reader>(reader), &fault), AAA_ATTR_ERR_BAD_ARG)
        << what;
    EXPECT_EQ(text_of(fault), "byte 0: ") << what;
  }
}

TEST(Hostile, EveryRuleHasASentenceOfItsOwn) {
  std::set<std::string> sentences;
  std::uint32_t rule = AAA_ATTR_RULE_NONE + 1;
  for (; *aaa_attr_rule_text(rule) != 0; ++rule)
    EXPECT_TRUE(sentences.insert(aaa_attr_rule_text(rule)).second) << aaa_attr_rule_text(rule);
  EXPECT_EQ(rule, AAA_ATTR_RULE_TLV_ROOM + 1u);
  EXPECT_STREQ(aaa_attr_rule_text(AAA_ATTR_RULE_NONE), "");
  EXPECT_STREQ(aaa_attr_rule_text(~0u), "");
  // Each has a row that shows it.
  for (const malformed::Section &section : malformed::sections())
    for (const malformed::Case &row : section.cases)
      for (const char who : {'D', 'V', 'T'}) sentences.erase(aaa_attr_rule_text(row.fault_to(who).rule));
  EXPECT_EQ(testing::PrintToString(sentences), "{}");
}

TEST(Hostile, CutAtEveryLength) {
  for (const char *golden : {golden::kForeign, golden::kNested, golden::kTlvNested}) {
    const Bytes buffer = golden_buffer(golden);
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
    const Bytes buffer = golden_buffer(golden);
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
