// Tables of calls that change a list: what it holds before and after, as text, and whether it can be used on.
#pragma once

#include <gtest/gtest.h>

#include <functional>

#include "support/blocks.h"
#include "support/list_text.h"

struct Change {
  const char *before;
  std::function<aaa_attr_cerrno(List &)> call;
  const char *after;  // with the removed records, which keep their places
  const char *why;
  const char *shape = nullptr;  // when it is not that of a list made from `after`
};

inline void expect_changes(const std::vector<Change> &rows) {
  for (const Change &row : rows) {
    SCOPED_TRACE(std::string(row.before) + " -> " + row.after + ": " + row.why);
    List list = list_of(row.before);
    EXPECT_EQ(row.call(list), 0u);
    EXPECT_EQ(outline(list), outline_of(row.after));
    EXPECT_EQ(shape(list), row.shape != nullptr ? row.shape : shape(list_of(row.after)));
    EXPECT_EQ(flaws(list), "");
    // The end of the list is found again: by a record that may have room there and by one that has not.
    std::string_view more = "V=x V=*";
    add_items(more, list);
    EXPECT_EQ(outline(list), outline_of(row.after + std::string(" V=x V=*")));
    EXPECT_EQ(flaws(list), "");
  }
}

// A call with a second list, which is to become `after2` or stay as it is. It is freed behind the call: what the first
// list shares with it is gone then.
using PairCall = aaa_attr_cerrno (*)(aaa_attr_list_handle, aaa_attr_list_handle);

inline auto with(PairCall call, const char *list2, const char *after2 = nullptr) {
  return [=](List &list) {
    const List second = list_of(list2), expected = list_of(after2 != nullptr ? after2 : list2);
    const aaa_attr_cerrno code = call(list, second);
    EXPECT_EQ(outline(second), outline(expected));
    EXPECT_EQ(shape(second), shape(expected));
    return code;
  };
}
