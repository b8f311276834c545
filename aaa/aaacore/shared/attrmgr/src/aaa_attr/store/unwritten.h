// Room for a T that is written before it is read: for arrays of which a call uses a few elements.
#pragma once

#include <type_traits>

namespace attrmgr {

template <class T>
union Unwritten {
  static_assert(std::is_trivially_destructible_v<T>);
  Unwritten() {}
  T value;
};

}  // namespace attrmgr
