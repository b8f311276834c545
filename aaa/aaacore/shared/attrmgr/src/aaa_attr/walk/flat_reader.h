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
#include "aaa_attr/walk/fault.h"
#include "aaa_attr/walk/record_scan.h"
#include "dictionary/type_table.h"

namespace attrmgr {

// What a reader insists on; each level includes those before it. aaa_attr_fault.h lists the rules one by one.
enum class FlatRules {
  kTrusted,    // 24-byte headers; a list begins with a head block; nothing is known of the buffer's end
  kWhole,      // either header; magic, lengths and counts add up
  kDecodable,  // flags and block counts agree, values are what readers rely on, blocks fit a list's
  kValid,      // 24-byte headers, and `next` is zero exactly in the last block of each list
};

inline constexpr std::uint64_t kUnknownLength = ~std::uint64_t{0};

template <class Form, FlatRules kRules, class Fault = Unnamed>
class FlatReader {
 public:
  using Block = BasicBlock<Form, const std::byte>;
  using Record = BasicRecord<Form, const std::byte>;
  using Scan = BasicRecordScan<Form, const std::byte>;

  // Reads num_lists lists that begin at bytes and lie within length bytes.
  explicit FlatReader(const std::byte *bytes, std::uint64_t length = kUnknownLength, std::uint16_t num_lists = 1)
      : at_(bytes), remaining_(length) {
    levels_[0] = {0, false, num_lists};
  }

  // Goes to the next block. False after the last one, and at a block that breaks the rules.
  bool next();

  // Reads all blocks that are left, and tells whether none breaks the rules.
  bool read_to_end() {
    while (next()) {
    }
    return complete_;
  }

  // After next() gave false: whether it was after the last block.
  bool complete() const { return complete_; }
  // Otherwise, for Named: the rule that was broken.
  const Fault &fault() const { return fault_; }

  Block block() const { return block_; }
  // As long as the block is not rewritten.
  std::size_t header_size() const {
    return kRules == FlatRules::kWhole || kRules == FlatRules::kDecodable ? block_.header_size() : kHeaderSize;
  }
  Scan records() const { return Scan(block_, header_size()); }
  bool starts_list() const { return starts_list_; }
  // From kWhole on: whether the block has Grouped records, be they removed, may hold a secret, and what it means to the
  // list that takes it in, in bits of kListBits.
  bool has_grouped() const { return (findings_.type_traits & kOwnsSubList) != 0; }
  bool holds_secret() const { return (findings_.type_traits & kHoldsSecret) != 0; }
  std::uint32_t list_bits() const;
  unsigned depth() const { return depth_ - 1; }  // 0 for the outer list
  // Of the list that the block which breaks the rules would be in.
  unsigned fault_depth() const { return starts_list_ && levels_[depth_].lists_left > 0 ? depth_ : depth_ - 1; }
  const std::byte *after() const { return at_; }  // the byte after the blocks read so far

 private:
  struct Level {
    std::uint16_t blocks_left;  // of the list at this level
    bool foreign;               // its first block has the foreign layout
    std::uint16_t lists_left;   // nested lists still to come after its current block
  };

  // What one pass over a block's records tells.
  struct Findings {
    bool sound;  // the records are as many as counted, fill the block and are what readers rely on
    bool any_removed;
    bool any_live_zero;          // of type 0, at which a client's walk ends
    std::uint8_t type_traits;    // of all records; kEndsInNul says nothing
    std::uint16_t live_grouped;  // those that own a nested list
  };

  static constexpr bool asks(FlatRules level) { return kRules >= level; }
  bool is_last_of_list() const { return levels_[depth_].blocks_left == 1; }

  // The rules, in the order in which they are looked at. Each is a part of next(): a call would cost more than most.
  bool begins_here();
  bool enters_list();
  bool has_layout();
  bool has_extent();
  [[gnu::always_inline]] inline bool agrees_with_list();
  bool goes_on_as_told();
  [[gnu::always_inline]] inline bool has_sound_records();

  bool look_for_block();
  [[gnu::always_inline]] inline void leave_block();
  static std::uint32_t lacks_nul(Record record, const std::byte *end);
  bool refuse(aaa_attr_rule rule, const std::byte *at);
  bool refuse_field(aaa_attr_rule rule, std::size_t field) { return refuse(rule, block_.bytes() + field); }
  bool refuse_records();
  bool refuse_cut_record(Record record) requires Fault::kNames;
  bool holds_value(Record record, const std::byte *end) requires Fault::kNames;
  Findings look_over() const;

  const std::byte *at_;
  std::uint64_t remaining_;
  Block block_;
  bool starts_list_ = false;
  bool complete_ = false;
  bool damaged_ = false;  // a trusted block's records pass its end: nothing after it can be found
  unsigned depth_ = 0;    // level 0 stands for what contains the lists to read
  Findings findings_{};
  [[no_unique_address]] Fault fault_;
  Level levels_[AAA_ATTR_NESTING_MAX + 2];  // written as they are entered
};

// Reads bytes of which nothing is known but what their blocks say: for the calls that are told no length.
using TrustedReader = FlatReader<HostForm, FlatRules::kTrusted>;

}  // namespace attrmgr
