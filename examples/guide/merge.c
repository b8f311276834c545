// Lays a policy over a session.
#include <attrmgr/attrmgr.h>
#include <inttypes.h>
#include <stdio.h>
#include <string.h>

#include "must.h"

static void add_text(aaa_attr_list_handle list, uint32_t type, const char *text) {
  must(aaa_attr_add(list, type, text, (uint32_t)strlen(text), NULL));
}

static void add_number(aaa_attr_list_handle list, uint32_t type, uint32_t number) {
  must(aaa_attr_add(list, type, &number, sizeof number, NULL));
}

static void show(const char *title, aaa_attr_list_handle list) {
  aaa_cursor *cursor;
  uint32_t length, number;
  printf("%s:", title);
  must(aaa_cursor_alloc(list, &cursor));
  while (aaa_cursor_get_next(cursor) != 0) {
    const char *text = aaa_cursor_get_string(cursor, &length);
    printf(" %s=", aaa_cursor_get_name(cursor));
    if (text != NULL) {
      printf("%s", text);
    } else if (aaa_cursor_get_uint32_t(cursor, &number) == 0) {
      printf("%" PRIu32, number);
    }
  }
  aaa_cursor_free(cursor);
  putchar('\n');
}

int main(void) {
  const uint16_t ids[2] = {1, 1};
  must(aaa_attr_client_register("policy", ids));

  aaa_attr_list_handle session, policy, record;
  must(aaa_attr_list_alloc(&session));
  add_text(session, AAA_ATTR_TYPE_USERNAME, "mira.holt");
  add_text(session, AAA_ATTR_TYPE_QOS_POLICY_IN, "bronze");
  add_number(session, AAA_ATTR_TYPE_SESSION_TIMEOUT, 3600);
  must(aaa_attr_list_alloc(&policy));
  add_text(policy, AAA_ATTR_TYPE_QOS_POLICY_IN, "gold");
  add_number(policy, AAA_ATTR_TYPE_IDLETIMEOUT, 600);

  // [merge]
  must(aaa_attr_list_merge_with_replace(session, policy));  // the policy is as it was
  show("session", session);
  // [merge]

  // [filter]
  const uint32_t wanted[] = {AAA_ATTR_TYPE_USERNAME, AAA_ATTR_TYPE_SESSION_TIMEOUT};
  must(aaa_attr_list_copy(session, &record));
  must(aaa_attr_filter_on_type(&record, wanted, 2));  // record names a new list now
  show("record", record);
  // [filter]

  aaa_attr_list_free(record);
  aaa_attr_list_free(policy);
  aaa_attr_list_free(session);
}
