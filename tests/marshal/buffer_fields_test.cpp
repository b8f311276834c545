// The fields of buffers: each byte has one, in host and network form alike, and what is refused is taken apart as far
// as it holds.
#include <attrmgr/attrmgr.h>
#include <gtest/gtest.h>

#include "support/malformed.h"

namespace {

struct Fields {
  std::vector<aaa_attr_field> all;
  aaa_attr_fault fault = {};
  aaa_attr_cerrno code = 0;
};

Fields fields_of(const Bytes &buffer, aaa_attr_reader reader) {
  Fields fields;
  const auto keep = [](const aaa_attr_field *field, void *all) {
    static_cast<std::vector<aaa_attr_field> *>(all)->push_back(*field);
  };
  fields.code = aaa_attr_buffer_fields(buffer.data(), size_of(buffer), reader, keep, &fields.all, &fields.fault);
  return fields;
}

const char *name_of(std::uint32_t kind) {
  static constexpr const char *kNames[] = {"?",       "marker", "magic",   "version",     "flags", "blocks",
                                           "records", "free",   "used",    "reserved",    "next",  "type",
                                           "flags",   "length", "service", "protocol",    "tag",   "flags",
                                           "client",  "value",  "total",   "meta length", "unread"};
  return kNames[kind];
}

// "offset name=number", a line for each block, record and nested list; + and - tell of the size of values and of what
// is missing.
std::string text_of(const Fields &fields) {
  std::string text;
  for (const aaa_attr_field &field : fields.all) {
    const bool begins = field.kind == AAA_ATTR_FIELD_MAGIC || field.kind == AAA_ATTR_FIELD_TYPE ||
                        field.kind == AAA_ATTR_FIELD_UNREAD || field.kind == AAA_ATTR_FIELD_TOTAL;
    if (begins) text += "\n" + std::string(2 * field.depth, ' ') + std::to_string(field.offset);
    text += std::string(" ") + name_of(field.kind);
    if (field.kind == AAA_ATTR_FIELD_VALUE || field.kind == AAA_ATTR_FIELD_UNREAD) {
      text += "+" + std::to_string(field.size);
    } else if (field.missing == 0) {
      text += "=" + std::to_string(field.number);
    }
    if (field.missing != 0) text += "-" + std::to_string(field.missing);
  }
  return text;
}

TEST(Fields, OfAFlatBuffer) {
  const Bytes buffer = golden_buffer(golden::kNested, "17=0100000000000000");
  const Fields host = fields_of(buffer, AAA_ATTR_READER_LIST);
  EXPECT_EQ(text_of(host), R"( marker=1
1 magic=43981 version=1 flags=37 blocks=2 records=3 free=440 used=72 reserved=0 next=1
25 type=197 flags=1 length=4 service=1 protocol=2 tag=4660 flags=1 client=16 value+4
45 type=444 flags=0 length=8 value+8
61 type=2 flags=2 length=4 value+4
  73 magic=43981 version=1 flags=35 blocks=1 records=1 free=476 used=36 reserved=0 next=0
  97 type=2 flags=0 length=4 value+4
109 magic=43981 version=1 flags=38 blocks=1 records=2 free=460 used=52 reserved=0 next=0
133 type=445 flags=20 length=8 value+8
149 type=2 flags=0 length=4 value+4
  161 magic=43981 version=1 flags=35 blocks=1 records=0 free=488 used=24 reserved=0 next=0)");
  EXPECT_EQ(host.code, 0u);
  EXPECT_EQ(host.all[10].offset, 25u);
  EXPECT_EQ(host.all[17].type, 197u) << "each field of a record has its type";

  Bytes network = buffer;
  ASSERT_EQ(aaa_attrs_buffer_tran_v1(reinterpret_cast<char *>(network.data()), size_of(network), CDM_ENDIAN_TRAN_HTON),
            0u);
  EXPECT_EQ(text_of(fields_of(network, AAA_ATTR_READER_NTOH)), text_of(host));
  EXPECT_EQ(text_of(fields_of(buffer, AAA_ATTR_READER_IN_PLACE)), text_of(host));
  EXPECT_EQ(text_of(fields_of(buffer, AAA_ATTR_READER_HTON)), text_of(host));
}

TEST(Fields, OfOtherBuffers) {
  const std::tuple<const char *, Bytes, const char *> rows[] = {
      {"foreign layout", golden_buffer(golden::kForeign), R"( marker=1
1 magic=43981 version=1 flags=19 blocks=1 records=1 free=484 used=28 next=0
17 type=2 flags=0 length=4 value+4)"},
      {"TLV", join({golden_buffer(golden::kTlvNested), {0xEE}}), R"( marker=2
1 total=83
5 type=197 meta length=8 service=1 protocol=2 tag=4660 flags=1 client=16 length=3 value+3
28 type=444 meta length=0
  36 total=32
  40 type=2 meta length=0 length=4 value+4
  56 type=445 meta length=0
    64 total=4
68 type=2 meta length=0 length=4 value+4
84 unread+1)"},
      {"no magic", golden_buffer(golden::kOneUlong, "1=00"), R"( marker=1
1 magic=43776
3 unread+34)"},
      {"a header cut short", head_of(golden_buffer(golden::kOneUlong), 12), R"( marker=1
1 magic=43981 version=1 flags=35 blocks=1 records=1 free=476 used-1)"},
      {"a value cut short", head_of(golden_buffer(golden::kOneUlong, "11=22"), 35), R"( marker=1
1 magic=43981 version=1 flags=35 blocks=1 records=1 free=476 used=34 reserved=0 next=0
25 type=2 flags=0 length=4 value+2-2)"},
      {"a record more than there are", join({golden_buffer(golden::kOneUlong, "7=02"), {0xEE}}), R"( marker=1
1 magic=43981 version=1 flags=35 blocks=1 records=2 free=476 used=36 reserved=0 next=0
25 type=2 flags=0 length=4 value+4
37 unread+1)"},
      {"a nested total too large", golden_buffer(golden::kTlvNested, "36=31"), R"( marker=2
1 total=83
5 type=197 meta length=8 service=1 protocol=2 tag=4660 flags=1 client=16 length=3 value+3
28 type=444 meta length=0
  36 total=49
  40 type=2 meta length=0 length=4 value+4
  56 type=445 meta length=0
    64 total=4
  68 type=2 meta length=0 length=4 value+4)"},
      {"a TLV buffer cut short", head_of(golden_buffer(golden::kTlvNested), 54), R"( marker=2
1 total=83
5 type=197 meta length=8 service=1 protocol=2 tag=4660 flags=1 client=16 length=3 value+3
28 type=444 meta length=0
  36 total=32
  40 type=2 meta length=0 length=4 value+2-2)"},
      {"a TLV value cut short by its list", golden_buffer(golden::kTlvNested, "48=11 36=14"), R"( marker=2
1 total=83
5 type=197 meta length=8 service=1 protocol=2 tag=4660 flags=1 client=16 length=3 value+3
28 type=444 meta length=0
  36 total=20
  40 type=2 meta length=0 length=17 value+4-13
56 unread+28)"},
      {"another marker", {3, 1}, " marker=3\n1 unread+1"},
  };
  for (const auto &[what, buffer, expected] : rows)
    EXPECT_EQ(text_of(fields_of(buffer, AAA_ATTR_READER_LIST)), expected) << what;
}

// Whatever the buffer, each byte has one field, and the fault is the one that is told without fields.
void expect_cover(const Bytes &buffer) {
  for (const auto reader :
       {AAA_ATTR_READER_LIST, AAA_ATTR_READER_IN_PLACE, AAA_ATTR_READER_HTON, AAA_ATTR_READER_NTOH}) {
    const Fields fields = fields_of(buffer, reader);
    aaa_attr_fault fault;
    EXPECT_EQ(aaa_attr_buffer_fault(buffer.data(), size_of(buffer), reader, &fault), fields.code);
    EXPECT_TRUE(fault.rule == fields.fault.rule && fault.offset == fields.fault.offset);
    std::size_t at = 0;
    for (const aaa_attr_field &field : fields.all) {
      ASSERT_EQ(field.offset, at) << name_of(field.kind) << " to reader " << reader;
      const bool no_number = field.kind == AAA_ATTR_FIELD_VALUE || field.kind == AAA_ATTR_FIELD_UNREAD || field.missing;
      ASSERT_TRUE(!no_number || field.number == 0) << name_of(field.kind) << " at " << at << " has a number";
      at += field.size;
    }
    ASSERT_EQ(at, buffer.size()) << "to reader " << reader;
  }
}

TEST(Fields, CoverEveryByteOfAnyBuffer) {
  for (const malformed::Section &section : malformed::sections())
    for (const malformed::Case &row : section.cases) {
      SCOPED_TRACE(std::string(section.title) + ": " + row.what);
      expect_cover(row.buffer);
    }
  for (const char *golden : {golden::kForeign, golden::kNested, golden::kTlvNested}) {
    const Bytes buffer = golden_buffer(golden);
    for (std::size_t size = 1; size < buffer.size(); ++size) expect_cover(head_of(buffer, size));
    for (std::size_t bit = 0; bit < buffer.size() * 8; ++bit) {
      SCOPED_TRACE("byte " + std::to_string(bit / 8) + " bit " + std::to_string(bit % 8));
      Bytes flipped = buffer;
      flipped[bit / 8] = static_cast<std::uint8_t>(flipped[bit / 8] ^ 1u << bit % 8);
      expect_cover(flipped);
    }
  }
}

TEST(Fields, OfNothing) {
  const auto count = [](const aaa_attr_field *, void *calls) { ++*static_cast<int *>(calls); };
  const std::uint8_t marker = AAA_MARSHAL_BUFFER;
  int calls = 0;
  EXPECT_EQ(aaa_attr_buffer_fields(&marker, 1, AAA_ATTR_READER_LIST, nullptr, &calls, nullptr), AAA_ATTR_ERR_BAD_ARG);
  EXPECT_EQ(aaa_attr_buffer_fields(nullptr, 1, AAA_ATTR_READER_LIST, count, &calls, nullptr), AAA_ATTR_ERR_BAD_ARG);
  EXPECT_EQ(aaa_attr_buffer_fields(&marker, 0, AAA_ATTR_READER_LIST, count, &calls, nullptr), AAA_ATTR_ERR_BAD_ARG);
  EXPECT_EQ(calls, 0);
  EXPECT_EQ(aaa_attr_buffer_fields(&marker, 1, AAA_ATTR_READER_LIST, count, &calls, nullptr), 0u);
  EXPECT_EQ(calls, 1);
}

}  // namespace
