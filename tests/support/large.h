// Large buffers, and the time that something takes with them.
#pragma once

#include <ctime>

#include "support/hostile.h"

inline void append(Bytes *to, const Bytes &more) { to->insert(to->end(), more.begin(), more.end()); }

inline Bytes repeated(std::size_t times, const Bytes &bytes) {
  Bytes all;
  all.reserve(times * bytes.size());
  for (std::size_t i = 0; i < times; ++i) append(&all, bytes);
  return all;
}

inline Bytes tlv_record(std::uint32_t type, const Bytes &content) {
  return join({little(type, 4), little(0, 4), content});
}

// A list of records in as many full blocks as they need, each block followed by a list for every record if they nest
// any.
inline Bytes flat_of(unsigned layout, std::size_t num_records, const Bytes &record, const Bytes &nested) {
  const std::size_t per_block = (65'535 - 24) / record.size();
  const std::size_t num_blocks = 1 + (num_records + per_block - 1) / per_block;
  const unsigned flags = layout | (nested.empty() ? 0u : kGroups);
  Bytes buffer = join({{AAA_MARSHAL_BUFFER}, block(layout | kHead, static_cast<unsigned>(num_blocks), {})});
  for (std::size_t left = num_records; left > 0;) {
    const std::size_t here = std::min(left, per_block);
    left -= here;
    Bytes packed = block(flags | (left == 0 ? kLast : 0u), 1, {repeated(here, record)});
    std::copy_n(little(here, 2).data(), 2, &packed[6]);
    append(&buffer, packed);
    append(&buffer, repeated(here, nested));
  }
  return host_form(buffer);
}

// The processor time of this thread: what else runs on the machine matters little.
inline double cpu_seconds() {
  timespec now;
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
  return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}
