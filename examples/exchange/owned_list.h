// An attribute list that is freed with its scope. A sub-list needs none: the list that holds it frees it.
#pragma once

#include <attrmgr/aaa_attr.h>

#include <utility>

class OwnedList {
 public:
  OwnedList() = default;
  explicit OwnedList(aaa_attr_list_handle handle) : handle_(handle) {}
  OwnedList(OwnedList &&other) noexcept : handle_(std::exchange(other.handle_, 0)) {}
  OwnedList &operator=(OwnedList &&other) noexcept {
    std::swap(handle_, other.handle_);
    return *this;
  }
  ~OwnedList() { aaa_attr_list_free(handle_); }  // handle 0 names no list: nothing happens

  aaa_attr_list_handle handle() const { return handle_; }

 private:
  aaa_attr_list_handle handle_ = 0;
};
