/* aaa_export.h: how the interface is declared. The only header that knows about visibility, packing, C++ linkage, the
   host's addresses and byte order, and what compilers are told of a function. */
#ifndef ATTRMGR_AAA_EXPORT_H
#define ATTRMGR_AAA_EXPORT_H

#include <stdint.h>

#if defined(__GNUC__)
#define AAA_API __attribute__((visibility("default")))
#define AAA_PACKED __attribute__((packed))
#else
#define AAA_API
#define AAA_PACKED
#endif

/* AAA_API for a function whose result must be looked at: when it fails and nobody notices, an attribute is lost, memory
   leaks, or bytes go out that are not what they should be. */
#if (defined(__cplusplus) && __cplusplus >= 201703L) || (defined(__STDC_VERSION__) && __STDC_VERSION__ >= 202311L)
#define AAA_MUST_CHECK [[nodiscard]] AAA_API
#elif defined(__GNUC__)
#define AAA_MUST_CHECK __attribute__((warn_unused_result)) AAA_API
#else
#define AAA_MUST_CHECK AAA_API
#endif

/* After a function that throws nothing. Those that call a client's function do not have it, nor do those that a process
   may define itself. */
#if defined(__cplusplus) && __cplusplus >= 201103L
#define AAA_NOEXCEPT noexcept
#else
#define AAA_NOEXCEPT
#endif

/* A pointer in a structure of the interface. It takes 8 bytes on hosts with narrower addresses, too. */
#if UINTPTR_MAX > 0xFFFFFFFFu
#define AAA_POINTER(type, name) type *name
#else
/* clang-format off */
#define AAA_POINTER(type, name) type *name; uint32_t : 32
/* clang-format on */
#endif

/* The first bit of a flag field of 16 bits, as compilers lay out bit-fields: from the top where bytes are in big-endian
   order. */
#if defined(__BYTE_ORDER__) && __BYTE_ORDER__ == __ORDER_BIG_ENDIAN__
#define AAA_FIRST_BIT 0x8000u
#else
#define AAA_FIRST_BIT 0x1u
#endif

#ifdef __cplusplus
#define AAA_BEGIN_DECLS extern "C" {
#define AAA_END_DECLS }
#else
#define AAA_BEGIN_DECLS
#define AAA_END_DECLS
#endif

#endif
