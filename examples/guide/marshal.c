// A list as bytes, in three forms, and back.
#include <attrmgr/attrmgr.h>
#include <stdio.h>
#include <sys/uio.h>
#include <unistd.h>

#include "must.h"

// What another process does with bytes that arrive.
static void receive(const void *buffer, uint32_t length) {
  // [receive]
  aaa_attr_list_handle list;
  const aaa_attr_cerrno code = aaa_attr_buffer_to_list(buffer, length, &list);
  if (code != 0) {
    aaa_attr_fault fault;
    (void)aaa_attr_buffer_fault(buffer, length, AAA_ATTR_READER_LIST, &fault);
    printf("refused: %s, byte %u: %s\n", aaa_attr_cerrno_name(code), (unsigned)fault.offset,
           aaa_attr_rule_text(fault.rule));
    return;
  }
  printf("a list of %u\n", (unsigned)aaa_attr_list_attr_count(list));
  aaa_attr_list_free(list);
  // [receive]
}

static void read_in_place(const void *buffer, uint32_t length) {
  // [in_place]
  aaa_attr_cerrno code;
  aaa_cursor *cursor;
  uint32_t text_length;
  if (!is_aaa_attr_buffer_valid(buffer, length, &code)) {
    printf("not to be read in place: %s\n", aaa_attr_cerrno_name(code));
    return;
  }
  must(aaa_cursor_alloc_from_buffer(buffer, &cursor));
  if (aaa_cursor_move_by_type(cursor, AAA_ATTR_TYPE_USERNAME))
    printf("in place: %s\n", aaa_cursor_get_string(cursor, &text_length));
  aaa_cursor_free(cursor);
  // [in_place]
}

static void send_flat(aaa_attr_list_handle record) {
  // [flat]
  uint32_t size;
  must(aaa_attr_list_buffer_coalesce_and_get_len(record, &size));
  void *buffer = malloc(size);
  if (buffer == NULL) exit(1);
  must(aaa_attr_list_to_buffer_v1(record, buffer, &size));
  // [flat]
  receive(buffer, size);
  receive(buffer, size - 1);
  read_in_place(buffer, size);
  free(buffer);
}

static void send_tlv(aaa_attr_list_handle record) {
  // [tlv]
  uint8_t buffer[256];
  uint32_t size = sizeof buffer;
  must(aaa_attr_list_tlv_to_buffer(record, buffer, &size));
  // [tlv]
  receive(buffer, size);
  read_in_place(buffer, size);
}

static void send_pieces(aaa_attr_list_handle record, int pipe_end) {
  // [gather]
  aaa_attr_array_entry *pieces = NULL;
  uint32_t count = 0;  // 0: an array is allocated
  must(aaa_attr_list_to_array(record, &pieces, &count));
  const ssize_t written = writev(pipe_end, (const struct iovec *)pieces, (int)count);
  free(pieces);
  // [gather]
  if (written < 0) exit(1);
}

int main(void) {
  const uint16_t ids[2] = {1, 1};
  must(aaa_attr_client_register("marshal", ids));
  aaa_attr_list_handle record;
  must(aaa_attr_list_alloc(&record));
  must(aaa_attr_add(record, AAA_ATTR_TYPE_USERNAME, "mira.holt", 9, NULL));
  must(aaa_attr_add(record, AAA_ATTR_TYPE_NAS_IDENTIFIER, "bng-2", 5, NULL));

  send_flat(record);
  send_tlv(record);

  int ends[2];
  uint8_t arrived[1024];
  if (pipe(ends) != 0) return 1;
  send_pieces(record, ends[1]);
  const ssize_t length = read(ends[0], arrived, sizeof arrived);
  if (length > 0) receive(arrived, (uint32_t)length);
  aaa_attr_list_free(record);
}
