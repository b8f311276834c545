/* aaa_platform.h: what the library asks of the process around it.

   The library defines every function here and calls each through its dynamic symbol: a process that brings its own
   definition (the operating system's pools, a handle table that maps handles) gets its own called, in a static link as
   well. Functions that share what a pool or a table is are replaced together. The library's own definitions never end
   the process. */
#ifndef ATTRMGR_AAA_PLATFORM_H
#define ATTRMGR_AAA_PLATFORM_H

#include <stddef.h>
#include <stdint.h>

#include <attrmgr/aaa_attr_types.h>
#include <attrmgr/aaa_export.h>

AAA_BEGIN_DECLS

/* ---- Handle table: turns list handles into the address of a list's first block ----

   In the library's own table the handle is that address: nothing is stored, every non-zero handle is taken as valid,
   and a freed list's handle cannot be told from a live one. While it is in use, the library follows the handles of
   lists without calling id_to_ptr.

   handle       the handle of a list
   first_block  the address of a list's first block
   table        the table's number */

/* Creates the table, called once by aaa_attr_client_register with 256, 4096 and "AAA Attribute List handle IDs".
   initial: a hint, how many handles to be ready for; the library's own table does not need it.
   maximum: a hint, how many there may be at most.
   name: names the table in reports.
   Returns the table's number, passed to the three calls below (they get 0 before registration), or 0 on failure. */
AAA_API uint16_t id_create_new_table(uint32_t initial, uint32_t maximum, const char *name);

/* Issues a fresh handle that names first_block.
   Returns the handle, or 0 when there is none to be had. */
AAA_API uint64_t id_get(void *first_block, uint16_t table);

/* Returns the address that the handle names, or null.
   status: 0 when the handle is valid; 1 is reported as AAA_ATTR_ERR_BAD_LIST and 2 as AAA_ATTR_ERR_STALE_HANDLE.
   Owner: the library, of the block. */
AAA_API void *id_to_ptr(uint64_t handle, uint32_t *status, uint16_t table);

/* Withdraws the handle; later calls of id_to_ptr report it. */
AAA_API void id_delete(uint64_t handle, uint16_t table);

/* ---- Fixed-size element pools ----

   The library keeps one, "aaa_cursor", for the cursors that clients hold. Its own pools are safe to use from several
   threads at once; chunk_destroy is the exception, nothing else may use the pool then.

   pool  a pool from chunk_create */

typedef struct chunk_pool chunk_pool;

/* Creates a pool of elements of one size.
   name: names the pool in reports.
   element_size: the bytes of an element.
   elements_per_chunk: by how many elements the pool grows at a time.
   flags: means nothing to the library's own pools.
   reserved_1: the same.
   reserved_2: the same.
   Returns the pool, or null when memory is exhausted or a size is 0.
   Owner: the caller, until chunk_destroy. */
AAA_API chunk_pool *chunk_create(const char *name, uint32_t element_size, uint32_t elements_per_chunk, uint32_t flags,
                                 uint32_t reserved_1, uint32_t reserved_2);

/* Takes an element, aligned for any type, contents undefined.
   Returns the element, or null when memory is exhausted.
   Owner: the caller, until chunk_free or chunk_destroy. */
AAA_API void *chunk_malloc(chunk_pool *pool);

/* Gives an element back to the pool that it came from.
   element: what chunk_malloc returned. */
AAA_API void chunk_free(chunk_pool *pool, void *element);

/* Releases the pool and every element taken from it. */
AAA_API void chunk_destroy(chunk_pool *pool);

/* The cursor pool: null until the first cursor is taken, and again after aaa_base_destroy_chunk_cursor. */
extern AAA_API chunk_pool *aaa_base_chunk_cursor;

/* The flags word for chunk_create when the cursor pool is created. A client may change it before then. */
extern AAA_API uint32_t aaa_base_chunk_flag;

/* The size in bytes of a list's first block. */
extern AAA_API const uint16_t aaa_attr_chunk_size;

/* Destroys the cursor pool if there is one. Every cursor taken from it is gone; the next allocation of a cursor
   creates a new pool. The caller makes sure that no other thread uses a cursor meanwhile. */
AAA_API void aaa_base_destroy_chunk_cursor(void) AAA_NOEXCEPT;

/* ---- Memory and text ---- */

/* Allocates memory like malloc, and records on whose behalf it is taken: a list's first block names the call in the
   client that made the list.
   size: how many bytes.
   owner: an address in the code.
   Returns the memory, or null when it is exhausted.
   Owner: the caller, until free. */
AAA_API void *malloc_pc(size_t size, const void *owner);

/* Returns the owner recorded for an allocation that the library's own malloc_pc made. For debuggers and leak reports:
   the library itself does not call it, and it means nothing where a process brings a malloc_pc of its own.
   allocation: what malloc_pc returned.
   size: the bytes that it was asked for; aaa_attr_chunk_size for a list's first block.
   Owner: nobody; an address in the code. */
AAA_API const void *malloc_pc_owner(const void *allocation, size_t size) AAA_NOEXCEPT;

#define AAA_IPV6_TEXT_SIZE 46 /* bytes for the longest text of an IPv6 address, its NUL counted */

/* Writes the text form of an IPv6 address (RFC 5952).
   address: its 16 bytes.
   text: where to write, at least AAA_IPV6_TEXT_SIZE bytes.
   Returns text.
   Owner: the caller, as before. */
AAA_API char *ipv6_address_to_string(const uint8_t *address, char *text);

AAA_END_DECLS

#endif
