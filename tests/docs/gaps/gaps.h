/* gaps.h: a header that leaves things out, for the check of the reference (docs/reference/check.py).

   list  the handle of a list */
#ifndef ATTRMGR_GAPS_H
#define ATTRMGR_GAPS_H

/* ---- Complete ----

   other  another list

   AAA_ATTR_ERR_BAD_LIST: no list. */

/* Everything is there: of the list in the header's comment, of the other and the code in the section's.
   length: its own. */
AAA_API aaa_attr_cerrno complete(aaa_attr_list_handle list, aaa_attr_list_handle other, uint32_t length);

/* Makes a list.
   made: the list.
   Owner: the caller. */
AAA_API aaa_attr_cerrno complete_maker(aaa_attr_list_handle *made);

/* Returns the number of lists; a comment of two functions. */
AAA_API uint32_t complete_count(void);
AAA_API uint32_t complete_count_of(aaa_attr_list_handle list);

/* ---- Incomplete ---- */

AAA_API void no_comment(void);

/* Mentions size, but does not describe it. */
AAA_API void no_parameter(uint32_t size);

/* Gives no code. */
AAA_API aaa_attr_cerrno no_code(aaa_attr_list_handle list);

/* Counts. */
AAA_API uint32_t no_return(aaa_attr_list_handle list);

/* Returns a text. */
AAA_API const char *no_owner(aaa_attr_list_handle list);

/* Hands a list out.
   made: the list.
   Always 0. */
AAA_API aaa_attr_cerrno no_owner_of_list(aaa_attr_list_handle *made);

#define GAPS_SAID 1 /* a constant with a comment */
#define GAPS_UNSAID 2

#endif
