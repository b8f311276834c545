#include "aaa_attr/list_ops/type_index.h"

#include "aaa_attr/walk/list_walk.h"

namespace attrmgr {

TypeIndex::TypeIndex(BlockView list, BlockView asked) : list_(list) {
  for (const RecordView record : Attributes(asked)) asked_.insert(record.type());
  for (const BlockView block : Blocks(list))
    for (const RecordView record : BlockRecords(block)) {
      if (record.type() == 0) {
        cut_ = true;
        return;
      }
      if (asked_.may_contain(record.type())) note({block, record});
    }
}

void TypeIndex::note(Place place) {
  const std::uint16_t type = place.record.type();
  if (type >= AAA_ATTR_TYPE_COUNT || known_.may_contain(type)) {
    unique_ = false;
    return;
  }
  known_.insert(type);
  first_[type].write(place);
}

RecordsOfType::Iterator TypeIndex::records(std::uint16_t type) const {
  if (type >= AAA_ATTR_TYPE_COUNT) return RecordsOfType(list_, type).begin();
  return known_.may_contain(type) ? RecordsOfType::Iterator(first_[type].value, type) : RecordsOfType::Iterator();
}

RecordView TypeIndex::first(std::uint16_t type) {
  const RecordsOfType::Iterator found = records(type);
  if (*found && type < AAA_ATTR_TYPE_COUNT) first_[type].value = found.place();
  return *found;
}

void TypeIndex::appended(std::size_t size) {
  const BlockView last = last_block(list_);
  if (!cut_) note({last, RecordView(last.end() - size)});
}

}  // namespace attrmgr
