// A cursor over a list, in C++. Exit status 0 when it sees what was added.
#include <attrmgr/attrmgr.h>

#include <cstdint>

int main() {
  aaa_attr_list_handle list = 0;
  aaa_cursor *cursor = nullptr;
  const std::uint32_t start = 1;
  if (aaa_attr_list_alloc(&list) != 0 || aaa_attr_add(list, 3, &start, sizeof start, nullptr) != 0) return 1;
  std::uint32_t value = 0;
  const bool seen = aaa_cursor_alloc(list, &cursor) == 0 && aaa_cursor_get_next(cursor) == 3 &&
                    aaa_cursor_get_uint32_t(cursor, &value) == 0 && value == start &&
                    name_acct_status_type[1] != nullptr;
  aaa_cursor_free(cursor);
  aaa_attr_list_free(list);
  return seen ? 0 : 1;
}
