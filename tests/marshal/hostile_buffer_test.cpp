// Buffers that do not hold together: every reader refuses them, reads nothing behind them and leaves nothing behind.
#include <attrmgr/attrmgr.h>
#include <gtest/gtest.h>

#include "support/hostile.h"

namespace {

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
  aaa_attr_cerrno reason;
  EXPECT_TRUE(is_aaa_attr_list_valid(list, &reason));
  EXPECT_EQ(decode(encode(list), &again), 0u);
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

// Damage to golden::kNested, and who refuses it: D the decoder, V the check for reading in place, T the translation.
TEST(HostileFlat, Damages) {
  const std::tuple<const char *, const char *, std::string_view> rows[] = {
      {"no magic in a nested list", "73=00", "DVT"},
      {"used bytes below the header", "11=1700", "DVT"},
      {"a record more than there are", "7=0400", "DVT"},
      {"a length that wraps to a small record in 32 bits", "29=f4ffffff", "DVT"},
      {"a meta that is not there, in the last record", "151=01", "DVT"},
      {"no blocks", "5=0000", "DVT"},
      {"a first block that is no head", "4=24", "DV"},
      {"a second head in the chain", "112=27", "DV"},
      {"a last block without the last flag", "112=24", "DV"},
      {"a Grouped value of no bytes", "49=00 53=1e00000000000000 7=0400", "DVT"},
      {"a Grouped record in a block that claims none", "4=21", "DV"},
      {"more live Grouped records than lists", "25=bc01000008000000 41=bc01000008000000 57=bc01000008000000", "DVT"},
      {"a text without its NUL", "44=21", "DV"},
      {"a text of no bytes", "133=c5000000 137=00 141=1e00000000000000 115=0300", "DV"},
      {"a Boolean of 4 bytes", "149=1900", "T"},
      {"an Enum of 12 bytes", "25=0300 27=00 29=0c", "T"},
      {"next of a block with a successor is 0", "17=0000000000000000", "V"},
      {"next of the last block is not 0", "132=01", "V"},
      {"free and reserved bytes", "9=ffff 13=ffffffff", ""},
      {"a type above 622", "149=6f02", ""},
  };
  for (const auto &[what, patches, refused_by] : rows) {
    SCOPED_TRACE(what);
    const auto answer = [by = refused_by](char who) { return by.find(who) + 1 ? AAA_ATTR_ERR_BAD_BUFFER : 0; };
    const Bytes buffer = patched(hex(golden::kNested), patches);
    EXPECT_EQ(decode_soundly(buffer), answer('D'));
    EXPECT_EQ(check(buffer), answer('V'));
    EXPECT_EQ(translate(buffer), answer('T'));
    if (answer('V') == 0) read_in_place(buffer);
  }
}

TEST(HostileFlat, CutAtEveryLength) {
  for (const Bytes &buffer : {hex(golden::kForeign), hex(golden::kNested)}) {
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
  for (std::size_t bit = 8; bit < buffer.size() * 8; ++bit) {
    SCOPED_TRACE("byte " + std::to_string(bit / 8) + " bit " + std::to_string(bit % 8));
    const Bytes bytes = flipped(buffer, bit);
    const aaa_attr_cerrno code = decode_soundly(bytes);
    EXPECT_TRUE(code == 0 || code == AAA_ATTR_ERR_BAD_BUFFER) << code;
    translate(bytes);
    if (check(bytes) == 0) read_in_place(bytes);  // the decoder accepts it, too
  }
}

// A foreign block grows by the longer header: a head to 512 bytes at most, a chained block to 65,535.
TEST(HostileFlat, BlocksThatFitNoListBlock) {
  const Bytes head = block(kHead | kForeignHeader, 2, {});
  for (const unsigned more : {0u, 1u}) {
    SCOPED_TRACE(more);
    const Bytes small = record(type::kBinary, std::string(480 + more, 'x'));
    const Bytes large = record(type::kBinary, std::string(65503 + more, 'x'));
    for (const Bytes &blocks :
         {block(kHead | kLast | kForeignHeader, 1, {small}), join({head, block(kLast | kForeignHeader, 1, {large})})})
      EXPECT_EQ(decode_soundly(flat({blocks})), more ? AAA_ATTR_ERR_BAD_BUFFER : 0);
  }
}

// Where a 24-byte header has `next`, this foreign block has a record of zeros: nothing but the layout gives it away.
TEST(HostileFlat, ForeignBlocksAreNotReadInPlace) {
  const Bytes foreign = flat({block(kHead | kLast | kForeignHeader, 1, {record(0, "")})});
  EXPECT_EQ(decode_soundly(foreign), 0u);
  EXPECT_EQ(check(foreign), AAA_ATTR_ERR_BAD_BUFFER);
}

TEST(HostileTlv, DamagedCutAndFlipped) {
  const std::tuple<const char *, const char *, aaa_attr_cerrno> rows[] = {
      {"a total that does not count itself", "1=03", AAA_ATTR_ERR_BAD_LENGTH},
      {"a total near 2^32", "1=ffffffff", AAA_ATTR_ERR_BAD_LENGTH},
      {"5 bytes behind the last whole record", "1=48", AAA_ATTR_ERR_BAD_LENGTH},
      {"type 0", "5=00", AAA_ATTR_ERR_NOT_FOUND},
      {"a type whose low half is known", "5=c5000100", AAA_ATTR_ERR_NOT_FOUND},
      {"a meta length other than 8 stands for a meta of 8", "9=01", 0},
      {"a value length that wraps a 32-bit position", "21=f0ffffff", AAA_ATTR_ERR_BAD_LENGTH},
      {"a Ulong of 3 bytes", "76=03", AAA_ATTR_ERR_BAD_ARG},
      {"a nested total that passes the outer list", "36=31", AAA_ATTR_ERR_BAD_LENGTH},
  };
  const Bytes buffer = hex(golden::kTlvNested);
  for (const auto &[what, patches, code] : rows)
    EXPECT_EQ(decode_soundly(patched(buffer, patches), tlv_buffer), code) << what;
  for (std::size_t size = 1; size < buffer.size(); ++size)
    EXPECT_EQ(decode_soundly(head_of(buffer, size), tlv_buffer), AAA_ATTR_ERR_BAD_LENGTH) << size;
  EXPECT_EQ(decode_soundly(join({buffer, {0xEE}}), tlv_buffer), 0u);
  for (std::size_t bit = 8; bit < buffer.size() * 8; ++bit) decode_soundly(flipped(buffer, bit), tlv_buffer);
}

// Lists nested in lists, `depth` levels below the outer one.
TEST(HostileNesting, EndsAtTheLimit) {
  const Bytes level = block(kHead | kLast | kGroups, 1, {record(type::kGrouped, "handle 1")});
  for (const unsigned depth : {128u, 129u, 2000u}) {
    SCOPED_TRACE(depth);
    Bytes levels, body = little(4, 4);
    for (unsigned i = 0; i < depth; ++i) {
      levels.insert(levels.end(), level.begin(), level.end());
      body = join({little(body.size() + 12, 4), little(type::kGrouped, 8), body});
    }
    const bool deep = depth > 128;
    const Bytes buffer = flat({levels, block(kHead | kLast, 1, {})});
    EXPECT_EQ(decode_soundly(buffer), deep ? AAA_ATTR_ERR_BAD_BUFFER : 0);
    EXPECT_EQ(check(buffer), deep ? AAA_ATTR_ERR_BAD_BUFFER : 0);
    EXPECT_EQ(translate(buffer), deep ? AAA_ATTR_ERR_BAD_BUFFER : 0);
    if (!deep) read_in_place(buffer);
    EXPECT_EQ(decode_soundly(join({{2}, body}), tlv_buffer), deep ? AAA_ATTR_ERR_BAD_LENGTH : 0);
  }
}

}  // namespace
