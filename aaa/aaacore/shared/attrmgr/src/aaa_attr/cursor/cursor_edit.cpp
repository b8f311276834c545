// Changing the record that a cursor stands on, and adding it to a list.
#include <attrmgr/aaa_cursor.h>

#include "aaa_attr/store/add_attribute.h"
#include "aaa_attr/store/client_types.h"
#include "aaa_attr/store/sub_list.h"
#include "aaa_attr/walk/cursor_step.h"

using namespace attrmgr;

void aaa_cursor_remove(aaa_cursor *cursor) noexcept {
  RecordView record = current_record(cursor);
  if (!record) return;
  if (in_buffer(*cursor)) {
    // Nested lists are told apart by counting live Grouped records: with one less, its nested list would be read as
    // part of the outer list.
    if (!is_grouped(record)) record.mark_deleted();
    return;
  }
  record.mark_deleted();
  const auto [head, error] = resolve(cursor->handle);
  if (!error) note(head, kMayNeedPacking);
}

aaa_attr_cerrno aaa_cursor_set_producer_client_type(aaa_cursor *cursor, std::uint32_t client_type) noexcept {
  RecordView record = current_record(cursor);
  if (!record || !is_valid_client_type(client_type)) return AAA_ATTR_ERR_BAD_ARG;
  record.set_client_type(client_type);
  return 0;
}

aaa_attr_cerrno aaa_cursor_list_add_attr(aaa_attr_list_handle list, const aaa_cursor *cursor) noexcept {
  const RecordView record = current_record(cursor);
  if (!record) return AAA_ATTR_ERR_BAD_ARG;
  if (in_buffer(*cursor) && is_grouped(record)) return AAA_ATTR_ERR_BAD_ARG;
  return add_attribute(list, attribute_of(record)).code;
}
