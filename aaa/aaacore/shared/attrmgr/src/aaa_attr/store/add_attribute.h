// Adding an attribute to the list that a handle names.
#pragma once

#include <attrmgr/aaa_attr_types.h>

#include "aaa_attr/store/append.h"
#include "aaa_attr/store/handle_check.h"
#include "aaa_attr/store/sub_list.h"

namespace attrmgr {

// Whether the attribute would make a list its own sub-list. Such a list could be neither walked to its end nor copied.
inline bool adds_to_itself(BlockView head, const NewAttribute &attribute, const NewRecord &record) {
  return record.is_grouped() && names_list_at(list_in(attribute), head);
}

inline Error add_attribute(BlockView head, const NewAttribute &attribute) {
  const NewRecord record = measure(attribute);
  if (const Error error = check_length(attribute, record)) return error;
  if (adds_to_itself(head, attribute, record)) return AAA_ATTR_ERR_BAD_ARG;
  ListEnd list(head);
  return append_checked(list, attribute, record);
}

// aaa_attr_add_v1, for whatever comes.
inline Error add_attribute(aaa_attr_list_handle list, const NewAttribute &attribute) {
  if (const Error error = check_presence(attribute)) return error;
  const auto [head, error] = resolve(list);
  return error ? error : add_attribute(head, attribute);
}

}  // namespace attrmgr
