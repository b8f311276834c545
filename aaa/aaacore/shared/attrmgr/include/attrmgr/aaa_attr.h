/* aaa_attr.h: attribute lists. Making and freeing them, adding, finding and removing attributes, combining lists.

   Conventions of all functions:
   - A list is named by a handle. Every operation checks it first and answers AAA_ATTR_ERR_BAD_LIST (0, or not a list)
     or AAA_ATTR_ERR_STALE_HANDLE (the handle table no longer knows it); both are meant by "the codes of the handle".
   - A null pointer where a call needs one gives AAA_ATTR_ERR_BAD_ARG, before the handle is looked at. A function
     without a result then does nothing; a reader returns 0 or null.
   - Out-parameters are written on success only, unless a comment says otherwise.
   - The compiler asks for the code of a function declared AAA_MUST_CHECK (aaa_export.h): it tells of an attribute that
     was not added, of memory that is still the caller's, of bytes that must not be used. Nothing is thrown.
   - Lengths are in bytes. The length of a String (AAA_ATTR_FMT_STRING) never counts its NUL, although the list stores
     one; the NUL of a String Attribute is counted.
   - Numbers are in host byte order; addresses in network byte order.
   - Values are copied into the list. A pointer to a value points into the list and holds until the list is coalesced,
     filtered or freed.
   - A record of a Grouped type owns the list whose handle is its value: freeing the outer list, removing the record
     with aaa_attr_remove and replacing it free that sub-list. A sub-list has one owner.
   - Different lists may be used by different threads at once. One list is one thread's at a time.
   - Operations over whole lists stop at the first failing step and return its code; what was done before stays.

   list         the handle of a list
   type         the number of an attribute type, AAA_ATTR_TYPE_* of aaa_attr_names.h
   client_type  a producer client type, AAA_ATTR_CLIENT_TYPE_MIN to AAA_ATTR_CLIENT_TYPE_MAX */
#ifndef ATTRMGR_AAA_ATTR_H
#define ATTRMGR_AAA_ATTR_H

#include <stdint.h>

#include <attrmgr/aaa_attr_types.h>
#include <attrmgr/aaa_export.h>

AAA_BEGIN_DECLS

/* ---- The client process ---- */

/* Registers the client process; called once before lists are used. A second registration returns 0 and changes nothing.
   name: what the process calls itself; copied.
   ids: two client identifiers.
   AAA_ATTR_ERR_BAD_ARG: name or ids null. AAA_ATTR_ERR_NO_MEMORY: no handle table, or no copy of the name. */
AAA_API aaa_attr_cerrno aaa_attr_client_register(const char *name, const uint16_t *ids) AAA_NOEXCEPT;

/* Returns the constant's name for a code ("AAA_ATTR_ERR_BAD_LIST"), "0" for 0, "<unknown>" for any other number.
   code: what a call returned.
   Owner: the library; constant text. */
AAA_API const char *aaa_attr_cerrno_name(aaa_attr_cerrno code) AAA_NOEXCEPT;

/* Returns what a code means, for a message: "there is no such attribute, type or value name". "no error" for 0,
   "unknown result code" for any other number. The texts may change.
   code: what a call returned.
   Owner: the library; constant text. */
AAA_API const char *aaa_attr_cerrno_text(aaa_attr_cerrno code) AAA_NOEXCEPT;

/* ---- Lists ---- */

/* Makes an empty list.
   list: its handle; 0 on failure.
   Owner: the caller, until aaa_attr_list_free, or until a record of another list owns it.
   AAA_ATTR_ERR_NO_MEMORY: no block or no handle. */
AAA_API aaa_attr_cerrno aaa_attr_list_alloc(aaa_attr_list_handle *list) AAA_NOEXCEPT;

/* Frees the list and every sub-list it owns, to any depth, in constant stack. Does nothing for a handle that does not
   name a list. */
AAA_API void aaa_attr_list_free(aaa_attr_list_handle list) AAA_NOEXCEPT;

/* Returns 1 when the handle and every block of the list are sound, else 0.
   code: 0 or the reason, AAA_ATTR_ERR_BAD_LIST or AAA_ATTR_ERR_STALE_HANDLE. */
AAA_API int is_aaa_attr_list_valid(aaa_attr_list_handle list, aaa_attr_cerrno *code) AAA_NOEXCEPT;

/* Tells whether a list has no attribute.
   empty: 1 when it has none, else 0.
   AAA_ATTR_ERR_BAD_LIST: the list is not valid, or empty is null. AAA_ATTR_ERR_NO_MEMORY: no cursor. */
AAA_API aaa_attr_cerrno is_aaa_attr_list_empty(aaa_attr_list_handle list, int *empty) AAA_NOEXCEPT;

/* Returns the number of records in the list; removed ones count until the list is coalesced. 0 for a handle that names
   no list. Later blocks are counted as they are: is_aaa_attr_list_valid looks at those. */
AAA_API uint32_t aaa_attr_list_attr_count(aaa_attr_list_handle list) AAA_NOEXCEPT;

/* Stamps every attribute with the producer client type.
   AAA_ATTR_ERR_BAD_ARG: client_type out of range and the list not empty. AAA_ATTR_ERR_NO_MEMORY: no cursor.
   Codes of the handle. */
AAA_API aaa_attr_cerrno aaa_attr_list_set_producer_client_type(aaa_attr_list_handle list,
                                                               uint32_t client_type) AAA_NOEXCEPT;

/* Stamps every attribute that does not carry a producer client type of 1 to 23 yet.
   Codes of aaa_attr_list_set_producer_client_type. */
AAA_API aaa_attr_cerrno aaa_attr_list_init_producer_client_type(aaa_attr_list_handle list,
                                                                uint32_t client_type) AAA_NOEXCEPT;

/* Writes a discriminator: the service and the protocol to which an attribute belongs. init writes zeros.
   discriminator: two bytes.
   service: AAA_SERVICE_* of aaa_attr_names.h.
   protocol: AAA_PROTOCOL_* of aaa_attr_names.h. */
AAA_API void aaa_attr_discrim_pack(uint8_t *discriminator, uint8_t service, uint8_t protocol) AAA_NOEXCEPT;
AAA_API void aaa_attr_discrim_init(uint8_t *discriminator) AAA_NOEXCEPT;

/* ---- Adding ----

   value        its bytes: a text without its NUL, a number, an address, or the handle of a sub-list (Grouped)
   length       must suit the type's format: 4 for Ulong, Enum and IPv4; 16 for IPv6; 4 or 16 for Address; 8 for
                Grouped; 1 for Boolean; 1 or more for all others
   meta         copied with the attribute, or null for none
   client_type  the producer client type; its low 7 bits are stored as they are, 0 for none

   Arguments are checked in the order of the codes. The list is unchanged on every failure of adding. When a Grouped
   attribute has been added, the record owns the sub-list; whether the handle names a list is not looked at.

   AAA_ATTR_ERR_NOT_FOUND: the dictionary has no such type (add_or_replace: also value null).
   AAA_ATTR_ERR_BAD_ARG: value null or length 0 (add_or_replace: the length only after the list).
   Codes of the handle.
   AAA_ATTR_ERR_BAD_ARG: length unsuitable, or too long for a block of 65,535 bytes; the value is the list itself.
   AAA_ATTR_ERR_NO_MEMORY: no block, or the list has 65,535 blocks. */

/* Appends an attribute. The unnumbered form gives no producer client type. */
AAA_MUST_CHECK aaa_attr_cerrno aaa_attr_add(aaa_attr_list_handle list, uint32_t type, const void *value,
                                            uint32_t length, const aaa_attr_meta *meta) AAA_NOEXCEPT;
AAA_MUST_CHECK aaa_attr_cerrno aaa_attr_add_v1(aaa_attr_list_handle list, uint32_t type, const void *value,
                                               uint32_t length, const aaa_attr_meta *meta,
                                               uint32_t client_type) AAA_NOEXCEPT;

/* Replaces the first attribute of the type, or appends if there is none. Same length and same meta (service, protocol,
   tag, mandatory): the value is overwritten in place, and the record keeps its producer client type. Otherwise the old
   attribute is removed and the new one appended; should that fail with AAA_ATTR_ERR_NO_MEMORY, for want of memory or at
   65,535 blocks, the list is left without either. A sub-list that the old attribute held is freed, unless the new value
   names that very list. Value and meta may lie in the list or in that sub-list.
   v1 appends, and leaves the old attribute, when the metas differ or only one of the two has meta.
   v2 takes the producer client type; the unnumbered form is v2 with 0.
   AAA_ATTR_ERR_BAD_ARG: from v1, when both attributes would then own one sub-list. */
AAA_MUST_CHECK aaa_attr_cerrno aaa_attr_add_or_replace(aaa_attr_list_handle list, uint32_t type, const void *value,
                                                       uint32_t length, const aaa_attr_meta *meta) AAA_NOEXCEPT;
AAA_MUST_CHECK aaa_attr_cerrno aaa_attr_add_or_replace_v1(aaa_attr_list_handle list, uint32_t type, const void *value,
                                                          uint32_t length, const aaa_attr_meta *meta) AAA_NOEXCEPT;
AAA_MUST_CHECK aaa_attr_cerrno aaa_attr_add_or_replace_v2(aaa_attr_list_handle list, uint32_t type, const void *value,
                                                          uint32_t length, const aaa_attr_meta *meta,
                                                          uint32_t client_type) AAA_NOEXCEPT;

/* Makes an empty sub-list and adds it to the parent as a Grouped attribute. A type of another format that takes 8 bytes
   stores the handle as mere bytes: nothing then frees the sub-list but the caller.
   parent: the list to which the sub-list is added.
   sub_list: the sub-list, for the caller to fill; 0 on failure.
   Owner: the parent.
   Codes of aaa_attr_list_alloc. */
AAA_MUST_CHECK aaa_attr_cerrno aaa_attr_add_group_list(aaa_attr_list_handle parent, aaa_attr_list_handle *sub_list,
                                                       uint32_t type, const aaa_attr_meta *meta) AAA_NOEXCEPT;

/* Adds a list to the parent as a Grouped attribute.
   parent: the list to which the sub-list is added.
   sub_list: a list of the caller's.
   Owner: the parent, of sub_list, from then on; on failure, and with a type that is not Grouped, the caller as before.
 */
AAA_MUST_CHECK aaa_attr_cerrno aaa_attr_add_existing_group_list(aaa_attr_list_handle parent,
                                                                aaa_attr_list_handle sub_list, uint32_t type,
                                                                const aaa_attr_meta *meta) AAA_NOEXCEPT;

/* ---- Finding ----

   Attributes are found in list order, removed ones not at all, type 0 never.

   value    where the value begins, or a copy of it where it is a number
   length   its length in bytes

   Owner: the list; a value holds until the list is coalesced, filtered or freed.
   AAA_ATTR_ERR_NOT_FOUND: no such attribute. Codes of the handle. */

/* Returns 1 when the list holds an attribute of the type, else 0 (also for a handle that names no list). */
AAA_API int aaa_attr_is_present(aaa_attr_list_handle list, uint32_t type) AAA_NOEXCEPT;

/* Counts the attributes of the type; none is no failure, and never AAA_ATTR_ERR_NOT_FOUND.
   count: the low 16 bits of their number. */
AAA_API aaa_attr_cerrno aaa_attr_find_attr_type_number(aaa_attr_list_handle list, uint32_t type,
                                                       uint16_t *count) AAA_NOEXCEPT;

/* Finds the first attribute of the type. */
AAA_API aaa_attr_cerrno aaa_attr_get(aaa_attr_list_handle list, uint32_t type, const void **value,
                                     uint32_t *length) AAA_NOEXCEPT;

/* Finds the n-th attribute of the type.
   n: counted from 0.
   AAA_ATTR_ERR_NOT_FOUND: also when value or length is null. */
AAA_API aaa_attr_cerrno aaa_attr_get_nth(aaa_attr_list_handle list, uint32_t type, const void **value, uint32_t *length,
                                         uint16_t n) AAA_NOEXCEPT;

/* Finds the first attribute of a String type.
   text: where its text begins, NUL-terminated in the list.
   length: its length without the NUL.
   AAA_ATTR_ERR_BAD_ARG: the type's format is not String, looked at before the handle. */
AAA_API aaa_attr_cerrno aaa_attr_get_string(aaa_attr_list_handle list, uint32_t type, const char **text,
                                            uint32_t *length) AAA_NOEXCEPT;

/* Reads the first attribute of the type as a number; the value must hold 4 (8) bytes, whatever its format.
   AAA_ATTR_ERR_BAD_ARG: it holds another number of bytes. */
AAA_API aaa_attr_cerrno aaa_attr_get_uint32_t(aaa_attr_list_handle list, uint32_t type, uint32_t *value) AAA_NOEXCEPT;
AAA_API aaa_attr_cerrno aaa_attr_get_uint64_t(aaa_attr_list_handle list, uint32_t type, uint64_t *value) AAA_NOEXCEPT;

/* Reads the first 4 bytes of the cursor's current attribute as a number.
   cursor: a cursor over a list or a buffer, aaa_cursor.h.
   AAA_ATTR_ERR_BAD_ARG: no current attribute, or its value is shorter; it gives no other code. */
AAA_API aaa_attr_cerrno aaa_attr_get_ulong_val(const aaa_cursor *cursor, uint32_t *value) AAA_NOEXCEPT;

/* ---- Removing ----

   A removed attribute is found no more, but its record keeps its place until the list is coalesced or filtered.
   Removing what is not there is no failure. Values are compared over their length; metas are not compared.

   list1  the list from which attributes are removed
   list2  the list that tells which

   Codes of the handle.
   AAA_ATTR_ERR_BAD_LIST: where two lists are given, if either is not valid. */

/* Removes every attribute of the type, and frees the sub-lists that they hold. */
AAA_API aaa_attr_cerrno aaa_attr_remove(aaa_attr_list_handle list, uint32_t type) AAA_NOEXCEPT;

/* Removes every attribute of the type with this value. A sub-list is named by its handle and not freed.
   value: the bytes of the value, a text without its NUL.
   length: how many.
   Owner: the caller, of a sub-list that is removed.
   AAA_ATTR_ERR_BAD_ARG: value null and length not 0. */
AAA_API aaa_attr_cerrno aaa_attr_remove_on_match(aaa_attr_list_handle list, uint32_t type, const void *value,
                                                 uint32_t length) AAA_NOEXCEPT;

/* Removes from list1 every attribute whose type list2 holds, and frees the sub-lists that they hold.
   AAA_ATTR_ERR_NO_MEMORY: no cursor. */
AAA_API aaa_attr_cerrno aaa_attr_list_remove_list(aaa_attr_list_handle list1, aaa_attr_list_handle list2) AAA_NOEXCEPT;

/* Removes from list1 every attribute of which list2 holds one of the same type and value; sub-lists as with
   aaa_attr_remove_on_match. AAA_ATTR_ERR_NO_MEMORY: no cursor. */
AAA_API aaa_attr_cerrno aaa_attr_list_remove_list_on_match(aaa_attr_list_handle list1,
                                                           aaa_attr_list_handle list2) AAA_NOEXCEPT;

/* Goes through list1 and removes every attribute of whose type list2 still holds one; with it goes the first such one
   of list2, if their values are the same. Sub-lists are not freed.
   list2: loses attributes, too.
   Owner: the caller, of the sub-lists that are removed. */
AAA_API aaa_attr_cerrno aaa_attr_list_remove_common_attrs(aaa_attr_list_handle list1,
                                                          aaa_attr_list_handle list2) AAA_NOEXCEPT;

/* ---- Combining ----

   Attributes of the source are added to the destination in the source's order, with their meta; a Grouped attribute
   with a copy of its sub-list. The source is not changed, except by aaa_attr_list_replace_and_add_v1. It must not be a
   sub-list of the destination, which could free it under way. What was added before a failure stays. A list decoded
   from a flat buffer may hold what adding refuses, a type that the dictionary does not have for one: the call ends
   there.

   destination  the list that receives attributes
   source       the list whose attributes are added

   AAA_ATTR_ERR_BAD_ARG: a handle is 0; both name the same list.
   Codes of the source's handle, of adding to the destination (looked at when the first attribute is added) and of
   copying sub-lists. */

/* Adds every attribute of the source, with its producer client type. */
AAA_MUST_CHECK aaa_attr_cerrno aaa_attr_list_append_list(aaa_attr_list_handle destination,
                                                         aaa_attr_list_handle source) AAA_NOEXCEPT;

/* Adds every attribute of the source as aaa_attr_add_or_replace_v2 does, with its producer client type. */
AAA_MUST_CHECK aaa_attr_cerrno aaa_attr_list_merge_with_replace(aaa_attr_list_handle destination,
                                                                aaa_attr_list_handle source) AAA_NOEXCEPT;

/* Adds the source's attributes of the type, without producer client type. The source comes first here. */
AAA_MUST_CHECK aaa_attr_cerrno aaa_attr_list_copy_by_type(aaa_attr_list_handle source, aaa_attr_list_handle destination,
                                                          uint32_t type) AAA_NOEXCEPT;

/* Removes from the destination every attribute whose type the source holds, then adds the source's attributes without
   producer client type.
   AAA_ATTR_ERR_BAD_LIST: of the removal, with a line to the standard error stream.
   AAA_ATTR_ERR_NO_MEMORY: the same. */
AAA_MUST_CHECK aaa_attr_cerrno aaa_attr_list_replace_and_add(aaa_attr_list_handle destination,
                                                             aaa_attr_list_handle source) AAA_NOEXCEPT;

/* Removes from *list1 every attribute whose type *list2 holds, adds the rest to *list2 with its producer client types,
   and exchanges the two handles. A failure leaves the handles as they were, and in the lists what was done so far.
   list1: names the whole afterwards.
   list2: names the rest afterwards.
   Owner: the caller, of both lists.
   Codes of aaa_attr_list_replace_and_add. */
AAA_MUST_CHECK aaa_attr_cerrno aaa_attr_list_replace_and_add_v1(aaa_attr_list_handle *list1,
                                                                aaa_attr_list_handle *list2) AAA_NOEXCEPT;

/* Adds the source's attributes without producer client type: "qos-policy-in" and "qos-policy-out" beside those that the
   destination holds, all others as aaa_attr_add_or_replace_v2 does. */
AAA_MUST_CHECK aaa_attr_cerrno aaa_attr_list_merge_double_dip(aaa_attr_list_handle destination,
                                                              aaa_attr_list_handle source) AAA_NOEXCEPT;

/* ---- Whole lists ---- */

/* Makes a deep copy of the list, removed records included.
   source: the list to copy.
   copy: the handle of the copy, written on success only.
   Owner: the caller, until aaa_attr_list_free.
   AAA_ATTR_ERR_BAD_ARG: copy null. AAA_ATTR_ERR_NO_MEMORY: no block or no handle.
   AAA_ATTR_ERR_BAD_LIST: also for a block of another layout version, which a decoded list may have.
   Codes of the handle, and of those of sub-lists. */
AAA_MUST_CHECK aaa_attr_cerrno aaa_attr_list_copy(aaa_attr_list_handle source, aaa_attr_list_handle *copy) AAA_NOEXCEPT;

/* Moves the source's blocks to the end of the destination, without a copy. The source's handle is gone then. Both lists
   are unchanged on failure.
   destination: the list that receives them.
   source: a list of the caller's, and no sub-list.
   Owner: the destination, of what the source held.
   Codes of the handles. AAA_ATTR_ERR_BAD_ARG: both name the same list. AAA_ATTR_ERR_NO_MEMORY: more than 65,535 blocks
   together. */
AAA_MUST_CHECK aaa_attr_cerrno aaa_attr_list_merge_list(aaa_attr_list_handle destination,
                                                        aaa_attr_list_handle source) AAA_NOEXCEPT;

/* Keeps the attributes of the given types and drops the others with their sub-lists. The list is rebuilt.
   list: becomes the handle of the new list; the old handle is gone.
   types: the types to keep.
   count: how many; only the low 8 bits are used.
   Owner: the caller, of the new list in place of the old one.
   AAA_ATTR_ERR_BAD_ARG: list null, or types null and a count not 0.
   AAA_ATTR_ERR_NO_MEMORY: *list stays and the attributes are dropped, but the list is not rebuilt.
   Codes of the handle, and of adding for what a decoded list may hold, with the same effect. */
AAA_MUST_CHECK aaa_attr_cerrno aaa_attr_filter_on_type(aaa_attr_list_handle *list, const uint32_t *types,
                                                       uint32_t count) AAA_NOEXCEPT;

/* Returns 1 when each list holds, for every attribute of the other, one of the same type, value and meta, whatever the
   order and the number of repetitions; sub-lists are compared by what they hold, without their meta. 0 for a handle
   that names no list, but identical handles are always equal.
   list1: one list.
   list2: the other. */
AAA_API int aaa_attr_list_eq(aaa_attr_list_handle list1, aaa_attr_list_handle list2) AAA_NOEXCEPT;

AAA_END_DECLS

#endif
