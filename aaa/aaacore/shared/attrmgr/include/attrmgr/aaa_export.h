/* aaa_export.h: how the interface is declared. The only header that knows about
   visibility, packing and C++ linkage. */
#ifndef ATTRMGR_AAA_EXPORT_H
#define ATTRMGR_AAA_EXPORT_H

#if defined(__GNUC__)
#define AAA_API __attribute__((visibility("default")))
#define AAA_PACKED __attribute__((packed))
#else
#define AAA_API
#define AAA_PACKED
#endif

#ifdef __cplusplus
#define AAA_BEGIN_DECLS extern "C" {
#define AAA_END_DECLS }
#else
#define AAA_BEGIN_DECLS
#define AAA_END_DECLS
#endif

#endif
