// The exported tables of value names: name_x and value_x for every table x of value_names.def.
#include <cstddef>

#include <attrmgr/aaa_attr_values.h>

static_assert(sizeof(aaa_attr_value_table) == 16);

extern "C" {

#define VALUES(table, ...)                          \
  const char *const name_##table[] = {__VA_ARGS__}; \
  const aaa_attr_value_table value_##table = {name_##table, sizeof name_##table / sizeof *name_##table};
#include "dictionary/value_names.def"
#undef VALUES

}  // extern "C"
