/* aaa_attr_display.h: lists as text, for debugging. One numbered line an attribute; secrets are not shown, and LI
   attributes only while the debug-LI flag is set (aaa_attr_dict.h). The text of an attribute is cut at 255 characters,
   never overrun. Showing an IPv6 prefix of a list clears the bits of its last byte beyond the prefix length, in the
   list itself.

   list     the handle of a list
   output   the function that receives the lines
   context  handed to the output function as it is */
#ifndef ATTRMGR_AAA_ATTR_DISPLAY_H
#define ATTRMGR_AAA_ATTR_DISPLAY_H

#include <stdint.h>

#include <attrmgr/aaa_attr_types.h>
#include <attrmgr/aaa_export.h>

AAA_BEGIN_DECLS

/* Receives one NUL-terminated line, valid during the call only, and the context given to the display. The line of an
   attribute begins with a newline, and has none after it. Its result is ignored. */
typedef int (*aaa_attr_output_fn)(char *line, uint64_t context);

/* Prints the list and its sub-lists to the standard output. */
AAA_API void aaa_attr_list_print(aaa_attr_list_handle list) AAA_NOEXCEPT;

/* Hands the list and its sub-lists to the output function, line by line. */
AAA_API void aaa_attr_list_display(aaa_attr_list_handle list, aaa_attr_output_fn output, uint64_t context);

/* The same in a shorter form: without meta, "value= " before the value. Sub-lists are displayed in full. */
AAA_API void aaa_attr_list_display_brief(aaa_attr_list_handle list, aaa_attr_output_fn output, uint64_t context);

/* Writes the list's lines into buffer, size bytes, cut short and NUL-terminated where they do not fit. A list without
   shown attributes leaves the buffer as it was.
   buffer: where to write.
   size: the bytes of buffer. */
AAA_API void aaa_attr_list_print_to_output_buffer(aaa_attr_list_handle list, char *buffer, int32_t size) AAA_NOEXCEPT;

/* Hands one line to the output function: number and total length of the attributes, the longest and the shortest.
   ignored: any number. */
AAA_API void aaa_display_summ_attr_list_fn(aaa_attr_list_handle list, uint32_t ignored, aaa_attr_output_fn output,
                                           uint64_t context);

/* Writes bytes as lowercase hexadecimal, cut short where they do not fit.
   bytes: what to write.
   count: how many; a negative one writes no text and length 0.
   text: where to write.
   size: the bytes of text, its NUL counted.
   length: the characters written.
   AAA_ATTR_ERR_BAD_ARG: size or count 0; bytes, text or length null. */
AAA_API aaa_attr_cerrno aaa_attr_bin_to_str(const uint8_t *bytes, int32_t count, char *text, uint32_t size,
                                            uint32_t *length) AAA_NOEXCEPT;

AAA_END_DECLS

#endif
