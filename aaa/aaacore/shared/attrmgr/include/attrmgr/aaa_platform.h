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
   lists without calling id_to_ptr. */

/* Creates the table, called once by aaa_attr_client_register with 256, 4096 and "AAA Attribute List handle IDs".
   initial and maximum are sizing hints that the library's own table does not need. Returns the table's number, passed
   to the three calls below (they get 0 before registration), or 0 on failure. */
AAA_API uint16_t id_create_new_table(uint32_t initial, uint32_t maximum, const char *name);

/* Issues a fresh handle that names first_block. Returns 0 when there is none to be had. */
AAA_API uint64_t id_get(void *first_block, uint16_t table);

/* Returns the address that the handle names, or null. *status: 0 when the handle is valid; 1 is reported as
   AAA_ATTR_ERR_BAD_LIST and 2 as AAA_ATTR_ERR_STALE_HANDLE. */
AAA_API void *id_to_ptr(uint64_t handle, uint32_t *status, uint16_t table);

/* Withdraws the handle; later calls of id_to_ptr report it. */
AAA_API void id_delete(uint64_t handle, uint16_t table);

/* ---- Fixed-size element pools ----

   The library keeps one, "aaa_cursor", for the cursors that clients hold. Its own pools are safe to use from several
   threads at once; chunk_destroy is the exception, nothing else may use the pool then. */

typedef struct chunk_pool chunk_pool;

/* Creates a pool of elements of element_size bytes that grows by elements_per_chunk at a time. flags, reserved_1 and
   reserved_2 mean nothing to the library's own pools. Returns null when memory is exhausted or a size is 0. */
AAA_API chunk_pool *chunk_create(const char *name, uint32_t element_size, uint32_t elements_per_chunk, uint32_t flags,
                                 uint32_t reserved_1, uint32_t reserved_2);

/* Takes an element, aligned for any type, contents undefined. Returns null when memory is exhausted. */
AAA_API void *chunk_malloc(chunk_pool *pool);

/* Gives an element back to the pool that it came from. */
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
AAA_API void aaa_base_destroy_chunk_cursor(void);

/* ---- Memory and text ---- */

/* Allocates size bytes like malloc, released with free, and records owner, the code address on whose behalf the
   memory is taken: a list's first block names the call in the client that made the list. Null when exhausted. */
AAA_API void *malloc_pc(size_t size, const void *owner);

/* The owner recorded for an allocation of size bytes that the library's own malloc_pc made (a list's first block has
   aaa_attr_chunk_size bytes). For debuggers and leak reports: the library itself does not call it, and it means nothing
   where a process brings a malloc_pc of its own. */
AAA_API const void *malloc_pc_owner(const void *allocation, size_t size);

/* Writes the text form of a 16-byte IPv6 address (RFC 5952) into text, at least AAA_IPV6_TEXT_SIZE bytes with the
   NUL, and returns text. */
#define AAA_IPV6_TEXT_SIZE 46
AAA_API char *ipv6_address_to_string(const uint8_t *address, char *text);

AAA_END_DECLS

#endif
