// Room for a T that is written before it is read: for arrays of which a call uses a few elements.
#pragma once

#include <memory>
#include <type_traits>

namespace attrmgr {

template <class T>
union Unwritten {
  static_assert(std::is_trivially_destructible_v<T>);
  Unwritten() {}  // NOLINT(modernize-use-equals-default): a default one would be deleted for most T

  T &write(const T &first) { return *std::construct_at(&value, first); }

  T value;  // once it is written
};

}  // namespace attrmgr
