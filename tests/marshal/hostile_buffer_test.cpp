// Buffers that do not hold together: every reader refuses them, reads nothing behind them and leaves nothing behind.
#include <attrmgr/attrmgr.h>
#include <gtest/gtest.h>

#include "support/hostile.h"

namespace {

std::uint32_t size_of(const Bytes &buffer) { return static_cast<std::uint32_t>(buffer.size()); }

// Bytes is allocated to size, so that the address sanitizer sees the first byte read behind it.
Bytes head_of(const Bytes &buffer, std::size_t size) {
  return Bytes(buffer.begin(), buffer.begin() + static_cast<std::ptrdiff_t>(size));
}

Bytes flipped(Bytes buffer, std::size_t bit) {
  buffer[bit / 8] = static_cast<std::uint8_t>(buffer[bit / 8] ^ 1u << bit % 8);
  return buffer;
}

// The decoder's answer. A list that it makes is sound, and survives being written and read again.
aaa_attr_cerrno decode_soundly(const Bytes &buffer, Bytes (*encode)(aaa_attr_list_handle) = flat_buffer) {
  aaa_attr_list_handle handle = 77;
  const aaa_attr_cerrno code = aaa_attr_buffer_to_list(buffer.data(), size_of(buffer), &handle);
  if (code != 0) {
    EXPECT_EQ(handle, 0u);
    return code;
  }
  const List list(handle);
  List again;
  aaa_attr_cerrno reason = 1;
  EXPECT_TRUE(is_aaa_attr_list_valid(list, &reason));
  EXPECT_EQ(decode(encode(list), &again), 0u);
  EXPECT_EQ(outline(again), outline(list));
  return code;
}

aaa_attr_cerrno check(const Bytes &buffer) {
  aaa_attr_cerrno code = 77;
  const int valid = is_aaa_attr_buffer_valid(buffer.data(), size_of(buffer), &code);
  EXPECT_EQ(valid, code == 0 ? 1 : 0);
  return code;
}

// The answer of the translation into network form. It is all or nothing, and the way back restores every byte.
aaa_attr_cerrno translate(const Bytes &buffer) {
  Bytes copy = buffer;
  char *bytes = reinterpret_cast<char *>(copy.data());
  const aaa_attr_cerrno code = aaa_attrs_buffer_tran_v1(bytes, size_of(copy), CDM_ENDIAN_TRAN_HTON);
  if (code == 0) {
    EXPECT_EQ(aaa_attrs_buffer_tran_v1(bytes, size_of(copy), CDM_ENDIAN_TRAN_NTOH), 0u);
  }
  EXPECT_EQ(copy, buffer);
  return code;
}

std::string outer_records(aaa_cursor *cursor) {
  std::string text;
  while (const std::uint32_t type = aaa_cursor_get_next(cursor)) {
    text += std::to_string(type) + '/' + std::to_string(aaa_cursor_get_producer_client_type(cursor)) + '=';
    std::uint32_t length = 0;
    const void *value = aaa_cursor_get(cursor, &length);
    text += aaa_cursor_grouped(cursor) ? "list" : std::string(static_cast<const char *>(value), length);
    text += aaa_cursor_get_meta(cursor) != nullptr ? " meta " : " ";
  }
  aaa_cursor_free(cursor);
  return text;
}

// What the check accepts may be given to every call that is told no length: they see what the decoder saw.
void read_in_place(const Bytes &buffer) {
  List list;
  ASSERT_EQ(decode(buffer, &list), 0u);
  aaa_cursor *in_buffer = nullptr, *in_list = nullptr;
  aaa_cursor_alloc_from_buffer(buffer.data(), &in_buffer);
  aaa_cursor_alloc(list, &in_list);
  EXPECT_EQ(outer_records(in_buffer), outer_records(in_list));

  const Bytes before = buffer;
  std::uint8_t value[64];
  for (const std::uint32_t type : {0u, 2u, 197u, 445u, 622u}) {
    std::uint32_t format, size = sizeof value;
    aaa_attr_get_from_buffer(buffer.data(), type, &format, value, &size);
  }
  testing::internal::CaptureStdout();
  aaa_attr_list_buffer_print(buffer.data());
  EXPECT_NE(testing::internal::GetCapturedStdout(), "");
  EXPECT_EQ(buffer, before);

  Bytes copy = buffer;
  EXPECT_EQ(aaa_attr_buffer_scrub(copy.data(), size_of(copy)), 0u);
  List scrubbed;
  EXPECT_EQ(decode(copy, &scrubbed), 0u);
  EXPECT_EQ(check(copy), 0u);
  EXPECT_EQ(outline(scrubbed), outline(list));
}

TEST(HostileFlat, Damages) {
  for (const FlatDamage &damage : kFlatDamages) {
    SCOPED_TRACE(damage.what);
    const auto answer = [&damage](char who) {
      return damage.refused_by.find(who) == std::string_view::npos ? 0 : AAA_ATTR_ERR_BAD_BUFFER;
    };
    const Bytes buffer = patched(hex(golden::kNested), damage.patches);
    EXPECT_EQ(decode_soundly(buffer), answer('D'));
    EXPECT_EQ(check(buffer), answer('V'));
    EXPECT_EQ(translate(buffer), answer('T'));
    if (answer('V') == 0) {
      read_in_place(buffer);
      continue;
    }
    Bytes copy = buffer;
    EXPECT_EQ(aaa_attr_buffer_scrub(copy.data(), size_of(copy)), AAA_ATTR_ERR_BAD_BUFFER);
    EXPECT_EQ(copy, buffer);
  }
}

TEST(HostileFlat, CutAtEveryLength) {
  for (const char *whole : {golden::kEmpty, golden::kOneUlong, golden::kForeign, golden::kNested}) {
    const Bytes buffer = hex(whole);
    SCOPED_TRACE(whole);
    for (std::size_t size = 1; size < buffer.size(); ++size) {
      SCOPED_TRACE(size);
      const Bytes cut = head_of(buffer, size);
      EXPECT_EQ(decode_soundly(cut), size == 1 ? 0 : AAA_ATTR_ERR_BAD_BUFFER) << "the marker alone is an empty list";
      EXPECT_EQ(check(cut), AAA_ATTR_ERR_BAD_BUFFER);
      EXPECT_EQ(translate(cut), AAA_ATTR_ERR_BAD_BUFFER);
    }
    EXPECT_EQ(decode_soundly(join({buffer, {0xEE}})), 0u) << "what follows the outer list is ignored";
  }
}

TEST(HostileFlat, EveryBitFlip) {
  const Bytes buffer = hex(golden::kNested);
  unsigned decoded = 0, valid = 0;
  for (std::size_t bit = 8; bit < buffer.size() * 8; ++bit) {
    SCOPED_TRACE("byte " + std::to_string(bit / 8) + " bit " + std::to_string(bit % 8));
    const Bytes bytes = flipped(buffer, bit);
    const aaa_attr_cerrno code = decode_soundly(bytes);
    EXPECT_TRUE(code == 0 || code == AAA_ATTR_ERR_BAD_BUFFER) << code;
    decoded += code == 0;
    translate(bytes);
    if (check(bytes) != 0) continue;
    ++valid;
    EXPECT_EQ(code, 0u) << "what the check accepts, the decoder accepts";
    read_in_place(bytes);
  }
  EXPECT_GT(decoded, valid);
  EXPECT_GT(valid, 0u);
}

TEST(HostileFlat, BlocksThatFitNoListBlock) {
  const auto binary = [](std::size_t used, std::size_t header) {
    return record(type::kBinary, std::string(used - header - 8, 'x'));
  };
  const auto chain = [](unsigned flags, const Bytes &last) {
    return flat({block(kHead | flags, 2, {}), block(kLast | flags, 1, {last})});
  };
  const struct {
    const char *what;
    Bytes buffer;
    aaa_attr_cerrno code;
  } rows[] = {
      {"a full head", flat({block(kHead | kLast, 1, {binary(512, 24)})}), 0},
      {"a head above 512 bytes", flat({block(kHead | kLast, 1, {binary(513, 24)})}), AAA_ATTR_ERR_BAD_BUFFER},
      {"a full foreign head", flat({block(kHead | kLast | kForeignHeader, 1, {binary(504, 16)})}), 0},
      {"a foreign head that grows", flat({block(kHead | kLast | kForeignHeader, 1, {binary(505, 16)})}),
       AAA_ATTR_ERR_BAD_BUFFER},
      {"the largest chained block", chain(0, binary(65535, 24)), 0},
      {"the largest foreign chained block", chain(kForeignHeader, binary(65527, 16)), 0},
      {"a foreign chained block that grows", chain(kForeignHeader, binary(65528, 16)), AAA_ATTR_ERR_BAD_BUFFER},
  };
  for (const auto &row : rows) {
    SCOPED_TRACE(row.what);
    EXPECT_EQ(decode_soundly(row.buffer), row.code);
    EXPECT_EQ(translate(row.buffer), 0u);
  }
}

TEST(HostileTlv, Damages) {
  for (const TlvDamage &damage : kTlvDamages) {
    SCOPED_TRACE(damage.what);
    EXPECT_EQ(decode_soundly(patched(hex(golden::kTlvNested), damage.patches), tlv_buffer), damage.code);
  }
}

TEST(HostileTlv, CutOrFlipped) {
  const Bytes buffer = hex(golden::kTlvNested);
  for (std::size_t size = 1; size < buffer.size(); ++size)
    EXPECT_EQ(decode_soundly(head_of(buffer, size), tlv_buffer), AAA_ATTR_ERR_BAD_LENGTH) << size;
  EXPECT_EQ(decode_soundly(join({buffer, {0xEE}}), tlv_buffer), 0u);
  for (std::size_t bit = 8; bit < buffer.size() * 8; ++bit) decode_soundly(flipped(buffer, bit), tlv_buffer);
}

TEST(HostileNesting, EndsAtTheLimit) {
  for (const unsigned depth : {128u, 129u}) {
    SCOPED_TRACE(depth);
    const bool deep = depth > 128;
    const Bytes in_flat = nested_flat(depth);
    EXPECT_EQ(decode_soundly(in_flat), deep ? AAA_ATTR_ERR_BAD_BUFFER : 0);
    EXPECT_EQ(check(in_flat), deep ? AAA_ATTR_ERR_BAD_BUFFER : 0);
    EXPECT_EQ(translate(in_flat), deep ? AAA_ATTR_ERR_BAD_BUFFER : 0);
    if (!deep) read_in_place(in_flat);
    EXPECT_EQ(decode_soundly(nested_tlv(depth), tlv_buffer), deep ? AAA_ATTR_ERR_BAD_LENGTH : 0);
  }
  EXPECT_EQ(decode_soundly(nested_flat(2000)), AAA_ATTR_ERR_BAD_BUFFER);
  EXPECT_EQ(decode_soundly(nested_tlv(2000), tlv_buffer), AAA_ATTR_ERR_BAD_LENGTH);
}

}  // namespace
