// Lists within lists, made and walked.
#include <attrmgr/attrmgr.h>
#include <inttypes.h>
#include <stdio.h>

#include "must.h"

// [walk]
static void show(aaa_cursor *cursor, int depth) {
  while (aaa_cursor_get_next(cursor) != 0) {
    uint32_t length, number;
    aaa_cursor *inner;
    printf("%*s%s", 2 * depth, "", aaa_cursor_get_name(cursor));
    const char *text = aaa_cursor_get_string(cursor, &length);  // null for other formats
    if (text != NULL) {
      printf(": %s\n", text);
    } else if (aaa_cursor_grouped(cursor)) {
      putchar('\n');
      must(aaa_cursor_grouped_alloc(cursor, &inner));
      show(inner, depth + 1);
      aaa_cursor_free(inner);
    } else if (aaa_cursor_get_uint32_t(cursor, &number) == 0) {
      printf(": %" PRIu32 "\n", number);
    }
  }
}
// [walk]

int main(void) {
  const uint16_t ids[2] = {1, 1};
  must(aaa_attr_client_register("charging", ids));

  // [build]
  aaa_attr_list_handle answer, install, rule, qos;
  const uint32_t precedence = 10, downlink = 50000000;
  must(aaa_attr_list_alloc(&answer));
  must(aaa_attr_add_group_list(answer, &install, AAA_ATTR_TYPE_CHARGING_RULE_INSTALL, NULL));
  must(aaa_attr_add_group_list(install, &rule, AAA_ATTR_TYPE_CHARGING_RULE_DEF, NULL));
  must(aaa_attr_add(rule, AAA_ATTR_TYPE_CHARGING_RULE_NAME, "video", 5, NULL));
  must(aaa_attr_add(rule, AAA_ATTR_TYPE_PRECEDENCE, &precedence, sizeof precedence, NULL));
  must(aaa_attr_add_group_list(rule, &qos, AAA_ATTR_TYPE_AUTHORIZED_QOS, NULL));
  must(aaa_attr_add(qos, AAA_ATTR_TYPE_MAX_REQ_BANDW_DL, &downlink, sizeof downlink, NULL));
  // [build]

  aaa_cursor *cursor;
  must(aaa_cursor_alloc(answer, &cursor));
  show(cursor, 0);
  aaa_cursor_free(cursor);
  aaa_attr_list_free(answer);  // frees all four
}
