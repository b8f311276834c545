// The one reader of flat buffers: it goes from block to block of a list and its nested lists, in the order in which
// they lie, and checks the structure on the way.
//
//   flat := block-and-nested+                  the blocks of one list
//   block-and-nested := block flat*            one flat for each live Grouped record of the block, in record order,
//                                              when the block has the holds-grouped flag
//
// The reader needs no recursion and no memory but a counter pair a level. It looks at a block's bytes before next()
// hands the block out and never again, so the block may be rewritten meanwhile.
#pragma once

#include <attrmgr/aaa_attr_types.h>

#include "aaa_attr/store/views.h"
#include "aaa_attr/walk/record_scan.h"

namespace attrmgr {

// What a reader insists on; each level includes those before it.
enum class FlatRules {
  kTrusted,    // 24-byte headers; a list begins with a head block; nothing is known of the buffer's end
  kWhole,      // either header; magic, lengths and counts add up
  kDecodable,  // flags and block counts agree, values are what readers are promised, blocks fit a list's
  kValid,      // 24-byte headers, and `next` is zero exactly in the last block of each list
};

inline constexpr std::uint64_t kUnknownLength = ~std::uint64_t{0};

template <class Form>
class FlatReader {
 public:
  // Reads num_lists lists that begin at bytes and lie within length bytes.
  FlatReader(const void *bytes, std::uint64_t length, FlatRules rules, std::uint16_t num_lists = 1);

  // Goes to the next block. False behind the last one, and at a block that breaks the rules.
  bool next();

  // After next() gave false: whether it was behind the last block.
  bool complete() const { return complete_; }

  BasicBlock<Form> block() const { return block_; }
  std::size_t header_size() const { return header_size_; }
  BasicRecordScan<Form> records() const { return BasicRecordScan<Form>(block_, header_size_); }
  bool starts_list() const { return starts_list_; }
  // From kWhole on: whether the block has Grouped records, be they removed, and live ones of type 0.
  bool has_grouped() const { return survey_.any_grouped; }
  bool has_type_zero() const { return survey_.any_type_zero; }
  unsigned depth() const { return depth_ - 1; }  // 0 for the outer list
  std::byte *behind() const { return at_; }      // the byte behind the blocks read so far

 private:
  struct Level {
    std::uint16_t blocks_left;  // of the list at this level
    std::uint16_t lists_left;   // nested lists still to come behind its current block
  };

  // What one pass over a block's records tells.
  struct Survey {
    bool sound;                  // the records are as many as counted, fill the block and keep what is promised of them
    bool any_grouped;            // there are Grouped records, be they removed
    bool any_type_zero;          // there are live records of type 0
    std::uint16_t live_grouped;  // those that own a nested list
  };

  bool enter_block();
  bool enter_list();
  template <bool kHoldToPromises>
  Survey survey() const;

  std::byte *at_;
  std::uint64_t remaining_;
  FlatRules rules_;
  BasicBlock<Form> block_;
  std::size_t header_size_ = kHeaderSize;
  bool starts_list_ = false;
  bool complete_ = false;
  bool damaged_ = false;  // a trusted block's records pass its end: nothing behind it can be found
  unsigned depth_ = 0;    // level 0 stands for what contains the lists to read
  Survey survey_{};
  Level levels_[AAA_ATTR_NESTING_MAX + 2];  // written as they are entered
};

}  // namespace attrmgr
