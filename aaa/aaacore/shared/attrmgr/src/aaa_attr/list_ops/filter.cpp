// Cutting a list down to a set of types. The kept attributes move to a new list without holes.
#include <attrmgr/aaa_attr.h>
#include <attrmgr/aaa_attr_dict.h>

#include "aaa_attr/list_ops/free.h"
#include "aaa_attr/list_ops/remove.h"
#include "aaa_attr/list_ops/type_set.h"
#include "aaa_attr/store/append.h"
#include "aaa_attr/store/handle_check.h"
#include "aaa_attr/store/sub_list.h"
#include "aaa_attr/walk/list_walk.h"

namespace attrmgr {
namespace {

// The types that are to be kept.
class Kept {
 public:
  Kept(const std::uint32_t *types, std::uint8_t count) : types_(types), count_(count) {
    for (std::uint8_t i = 0; i < count; ++i) set_.insert(types[i]);
  }

  bool contains(std::uint32_t type) const {
    return set_.may_contain(type) && (type < AAA_ATTR_TYPE_COUNT || listed(type));
  }

 private:
  bool listed(std::uint32_t type) const {
    for (std::uint8_t i = 0; i < count_; ++i)
      if (types_[i] == type) return true;
    return false;
  }

  const std::uint32_t *types_;
  std::uint8_t count_;
  TypeSet set_;
};

Error append_kept(BlockView from, BlockView to) {
  ListEnd end(to);
  for (const RecordView record : Attributes(from))
    if (const Error error = append(end, attribute_of(record))) return error;
  return 0;
}

// The new list owns the sub-lists of the kept records now.
void give_up_sub_lists(BlockView from) {
  for (const RecordView record : Attributes(from))
    if (holds_handle(record)) set_owned_list(record, 0);
}

}  // namespace
}  // namespace attrmgr

using namespace attrmgr;

aaa_attr_cerrno aaa_attr_filter_on_type(aaa_attr_list_handle *list, const std::uint32_t *types,
                                        std::uint32_t count) noexcept {
  const auto num_types = static_cast<std::uint8_t>(count);
  if (list == nullptr || (types == nullptr && num_types != 0)) return AAA_ATTR_ERR_BAD_ARG;
  const auto [head, refused] = resolve(*list);
  if (refused) return refused.code;
  const Kept kept(types, num_types);
  for (const RecordView record : Attributes(head))
    if (!kept.contains(record.type())) remove_with_sub_list(head, record);

  List made;
  if (const Error error = create_list(ATTRMGR_CALLER, &made)) return error.code;
  // Resolved again: a handle table of the process's own may have changed while the new list was made.
  const auto [rest, gone] = resolve(*list);
  if (const Error error = gone ? gone : append_kept(rest, made.head)) {
    free_without_sub_lists(made.handle, made.head);
    return error.code;
  }
  give_up_sub_lists(rest);
  free_list(*list);
  *list = made.handle;
  return 0;
}
