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
      add({block, record});
    }
}

void TypeIndex::add(Place place) {
  const std::uint16_t type = place.record.type();
  if (type >= AAA_ATTR_TYPE_COUNT || !asked_.may_contain(type) || known_.may_contain(type)) return;
  known_.insert(type);
  first_[type].write(place);
}

RecordView TypeIndex::first(std::uint16_t type) {
  if (!known_.may_contain(type)) return {};
  const RecordsOfType::Iterator found(list_, first_[type].value, type);
  if (*found) first_[type].value = found.place();
  return *found;
}

void TypeIndex::appended(BlockView last, std::size_t size) {
  if (!cut_) add({last, RecordView(last.end() - size)});
}

}  // namespace attrmgr
