/* Lists, cursors and buffers, sound ones and damaged ones, for views_test.sh to look at in a core file. */
#include <attrmgr/attrmgr.h>
#include <stdlib.h>
#include <string.h>

/* Offsets in a block, its first record, and the value of a second one after the name "x"; docs/layout.md. */
enum { kMagic = 0, kFlags = 3, kUsed = 10, kNext = 16, kFirstLength = 28, kEmptyGroup = 24 + 10 + 8 };

enum { kNumber = 2, kEnum = 3, kAddr = 7, kAddr6 = 11, kBool = 25, kBinary = 30, kSecret = 145, kTime = 186 };
enum { kName = 197, kLi = 293, kAddress = 429, kGrouped = 444, kWide = 453 };

static char *block_of(aaa_attr_list_handle list) {
  uint32_t status;
  return id_to_ptr(list, &status, 1);
}

static aaa_attr_list_handle list_with(const char *name) {
  aaa_attr_list_handle list = 0;
  aaa_attr_list_alloc(&list);
  aaa_attr_add(list, kName, name, (uint32_t)strlen(name), NULL);
  return list;
}

static void put16(aaa_attr_list_handle list, int at, uint16_t value) { memcpy(block_of(list) + at, &value, 2); }

static void put_next(aaa_attr_list_handle list, const void *next) { memcpy(block_of(list) + kNext, &next, 8); }

static void fill(aaa_attr_list_handle list) {
  const aaa_attr_meta meta = {4, 3, 1, AAA_ATTR_META_MANDATORY, 7};
  const uint32_t number = 4000000000u, stop = 2, unnamed = 77777;
  const int64_t time = 1795342445;
  aaa_attr_list_handle group = 0;
  aaa_attr_add(list, kNumber, &number, 4, NULL);
  aaa_attr_add(list, kEnum, &stop, 4, &meta);
  aaa_attr_remove(list, kNumber);
  aaa_attr_add(list, kEnum, &unnamed, 4, NULL);
  aaa_attr_add(list, kAddr, "\xcb\0\x71\7", 4, NULL);
  aaa_attr_add(list, kAddr6, "\x20\1\xd\xb8\0\0\0\0\0\0\0\0\0\0\0\1", 16, NULL);
  aaa_attr_add(list, kAddress, "\xcb\0\x71\x8", 4, NULL);
  aaa_attr_add(list, kBool, "\1", 1, NULL);
  aaa_attr_add(list, kSecret, "hushhush", 8, NULL);
  aaa_attr_add(list, kTime, &time, 8, NULL);
  aaa_attr_add(list, kLi, "tapped", 6, NULL);
  aaa_attr_add(list, kWide, "\1\0\0\0\0\0\0\0", 8, NULL);
  aaa_attr_add_group_list(list, &group, kGrouped, NULL);
  aaa_attr_add(group, kName, "\"in\\ner\"\n", 8, NULL);
  aaa_attr_add(group, kLi, "tapped", 6, NULL);
  char bytes[600];
  memset(bytes, 'x', sizeof bytes);
  aaa_attr_add(list, kBinary, bytes, sizeof bytes, NULL);
}

static void paused(void) { __asm__ volatile(""); }

int main(void) {
  aaa_attr_list_handle list = list_with("bob"), empty = 0;
  fill(list);
  aaa_attr_list_alloc(&empty);

  aaa_cursor *before = NULL, *on = NULL, *filtered = NULL, *in_buffer = NULL, *no_cursor = NULL;
  aaa_cursor_alloc(list, &before);
  aaa_cursor_alloc(list, &on);
  aaa_cursor_get_next(on);
  aaa_cursor_alloc_filtered(list, &filtered, 4, 3);
  aaa_cursor_get_next(filtered);

  char flat[2048], tlv[2048];
  uint32_t flat_size = sizeof flat, tlv_size = sizeof tlv;
  aaa_attr_list_to_buffer(list, flat, &flat_size);
  aaa_attr_list_tlv_to_buffer(list, tlv, &tlv_size);
  aaa_cursor_alloc_from_buffer(flat, &in_buffer);
  aaa_cursor_get_next(in_buffer);
  char other[8] = {9};

  const aaa_attr_list_handle nothing = 0;
  const aaa_attr_list_handle bad_magic = list_with("x"), freed_mark = list_with("x"), no_head = list_with("x");
  const aaa_attr_list_handle bad_used = list_with("x"), long_record = list_with("x"), short_records = list_with("x");
  const aaa_attr_list_handle loop = list_with("x"), wild_next = list_with("x"), itself = list_with("x");
  put16(bad_magic, kMagic, 0x1234);
  put16(freed_mark, kMagic, 0xFFFF);
  block_of(no_head)[kFlags] &= ~1;
  put16(bad_used, kUsed, 9);
  put16(long_record, kFirstLength, 5000);
  put16(short_records, kUsed, 64);
  put_next(loop, block_of(loop));
  put_next(wild_next, (const void *)8);
  aaa_attr_add_existing_group_list(itself, nothing, kGrouped, NULL);
  memcpy(block_of(itself) + kEmptyGroup, &itself, sizeof itself); /* no call does it */

  const aaa_attr_list_handle gone = list_with("x"), thin_air = 0x12345;
  aaa_attr_list_free(gone);
  paused();
  (void)nothing, (void)thin_air, (void)no_cursor, (void)other; /* looked at by GDB alone */
  return 0;
}
