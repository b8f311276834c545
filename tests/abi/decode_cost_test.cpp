// What reading received bytes costs at worst: the memory that a decoder takes for a byte read, and time that grows with
// the size of the input and no faster. Linked with the static library, so that every allocation is counted.
#include <gtest/gtest.h>
#include <malloc.h>

#include <cstdlib>

#include "support/large.h"

namespace {
std::size_t allocated = 0;  // bytes asked for
}

extern "C" {
void *__real_malloc(std::size_t size);
void *__real_calloc(std::size_t count, std::size_t size);
void *__real_aligned_alloc(std::size_t alignment, std::size_t size);

void *__wrap_malloc(std::size_t size) {
  allocated += size;
  return __real_malloc(size);
}
void *__wrap_calloc(std::size_t count, std::size_t size) {
  allocated += count * size;
  return __real_calloc(count, size);
}
void *__wrap_aligned_alloc(std::size_t alignment, std::size_t size) {
  allocated += size;
  return __real_aligned_alloc(alignment, size);
}
}

namespace {

constexpr std::size_t kBytesPerByte = 64;
constexpr std::size_t kBytesInAll = 16 * 1024;  // the first block, and the first chunk of the cursor pool

// Time for eight times the bytes: linear is 8, quadratic 64. The larger input may leave the caches.
constexpr std::size_t kGrowth = 8;
constexpr double kTimeGrowthMax = 2.5 * kGrowth;

Bytes empty_blocks(unsigned layout, std::size_t count) {
  Bytes buffer = join({{AAA_MARSHAL_BUFFER}, block(layout | kHead, static_cast<unsigned>(count), {})});
  append(&buffer, repeated(count - 2, block(layout, 1, {})));
  append(&buffer, block(layout | kLast, 1, {}));
  return host_form(buffer);
}

const Bytes &grouped() {
  static const Bytes bytes = record(type::kGrouped, "handle 1");
  return bytes;
}

struct Worst {
  const char *what;
  std::size_t count;  // of the larger input
  Bytes (*make)(std::size_t count);
};

const Worst kWorst[] = {
    {"TLV, empty groups", 40'000,
     [](std::size_t n) { return tlv_of(repeated(n, tlv_record(type::kGrouped, little(4, 4)))); }},
    {"TLV, 16 MiB of one-byte values", (16 << 20) / 13,
     [](std::size_t n) { return tlv_of(repeated(n, tlv_record(type::kBinary, little(1, 5)))); }},
    {"flat, empty groups", 40'000,
     [](std::size_t n) { return flat_of(kHeader, n, grouped(), block(kHead | kLast, 1, {})); }},
    {"flat, empty groups in the foreign layout", 40'000,
     [](std::size_t n) { return flat_of(kForeignHeader, n, grouped(), block(kForeignHeader | kHead | kLast, 1, {})); }},
    {"flat, empty blocks", 65'528, [](std::size_t n) { return empty_blocks(kHeader, n); }},
    {"flat, empty blocks in the foreign layout", 65'528, [](std::size_t n) { return empty_blocks(kForeignHeader, n); }},
    {"flat, 16 MiB of one-byte values", (16 << 20) / 9,
     [](std::size_t n) { return flat_of(kHeader, n, record(type::kBinary, "x"), {}); }},
};

TEST(DecodeCost, MemoryForAByteRead) {
  for (const Worst &worst : kWorst) {
    const Bytes buffer = worst.make(worst.count);
    allocated = 0;
    List list(0);
    ASSERT_EQ(decode(buffer, &list), 0u) << worst.what;
    EXPECT_LE(allocated, kBytesPerByte * buffer.size() + kBytesInAll) << worst.what;
    std::printf("%-42s %8zu bytes, %5.1f allocated for each\n", worst.what, buffer.size(),
                static_cast<double>(allocated) / static_cast<double>(buffer.size()));
  }
}

struct Operation {
  const char *what;
  bool in_place;  // told no length: only for buffers that passed the check
  aaa_attr_cerrno (*run)(Bytes &buffer);
};

aaa_attr_cerrno check(const Bytes &buffer) {
  aaa_attr_cerrno code;
  is_aaa_attr_buffer_valid(buffer.data(), size_of(buffer), &code);
  return code;
}

aaa_attr_cerrno translate(Bytes &buffer, cdm_endian_tran_type direction) {
  return aaa_attrs_buffer_tran_v1(reinterpret_cast<char *>(buffer.data()), size_of(buffer), direction);
}

const Operation kOperations[] = {
    {"decode and free", false,
     [](Bytes &buffer) {
       List list;
       return decode(buffer, &list);
     }},
    {"check", false, [](Bytes &buffer) { return check(buffer); }},
    {"scrub", false, [](Bytes &buffer) { return aaa_attr_buffer_scrub(buffer.data(), size_of(buffer)); }},
    {"translate there and back", false,
     [](Bytes &buffer) {
       const aaa_attr_cerrno code = translate(buffer, CDM_ENDIAN_TRAN_HTON);
       return code != 0 ? code : translate(buffer, CDM_ENDIAN_TRAN_NTOH);
     }},
    {"look up in vain", true,
     [](Bytes &buffer) -> aaa_attr_cerrno {
       std::uint32_t format, value, size = sizeof value;
       aaa_attr_get_from_buffer(buffer.data(), type::kUlong, &format, &value, &size);
       return 0;
     }},
    {"walk in place", true,
     [](Bytes &buffer) {
       aaa_cursor *cursor = nullptr;
       const aaa_attr_cerrno code = aaa_cursor_alloc_from_buffer(buffer.data(), &cursor);
       while (aaa_cursor_get_next(cursor) != 0) {
       }
       aaa_cursor_free(cursor);
       return code;
     }},
};

// The least of several runs of this thread: what else runs on the machine matters little.
double least_time(const Operation &operation, Bytes &buffer) {
  double least = 1e9;
  for (int run = 0; run < 5; ++run) {
    const double begin = cpu_seconds();
    operation.run(buffer);
    least = std::min(least, cpu_seconds() - begin);
  }
  return least;
}

TEST(DecodeCost, TimeGrowsWithTheInput) {
  mallopt(M_TRIM_THRESHOLD, 1 << 30);  // memory that comes anew from the system costs more than all the rest
  for (const Worst &worst : kWorst) {
    Bytes small = worst.make(worst.count / kGrowth), large = worst.make(worst.count);
    for (const Operation &operation : kOperations) {
      // The foreign layout is not read in place, and a TLV buffer is for the decoder only.
      if ((operation.in_place && check(small) != 0) || operation.run(small) != 0) continue;
      // A busy machine may slow one of the two down: what grows by a square does so every time.
      double small_time = 0, large_time = 0;
      for (int attempt = 0; attempt < 3 && (attempt == 0 || large_time > kTimeGrowthMax * small_time); ++attempt) {
        small_time = least_time(operation, small);
        large_time = least_time(operation, large);
      }
      EXPECT_LE(large_time, kTimeGrowthMax * small_time) << worst.what << ", " << operation.what;
      std::printf("%-42s %-26s %8.3f ms, %5.1f times that of an eighth\n", worst.what, operation.what, large_time * 1e3,
                  large_time / small_time);
    }
  }
}

}  // namespace
