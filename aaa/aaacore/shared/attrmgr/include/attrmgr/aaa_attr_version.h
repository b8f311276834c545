/* aaa_attr_version.h: the version of the interface that a program is compiled with, and of the library that it runs
   with. The major version changes when programs that are built already would misbehave; the library's file is named
   after it. */
#ifndef ATTRMGR_AAA_ATTR_VERSION_H
#define ATTRMGR_AAA_ATTR_VERSION_H

#include <stdint.h>

#include <attrmgr/aaa_export.h>

AAA_BEGIN_DECLS

/* The parts of the version. */
#define AAA_ATTR_VERSION_MAJOR 1
#define AAA_ATTR_VERSION_MINOR 0
#define AAA_ATTR_VERSION_PATCH 0

/* A version as a number that grows: #if AAA_ATTR_VERSION >= AAA_ATTR_VERSION_NUMBER(1, 2, 0). A part is below 256. */
#define AAA_ATTR_VERSION_NUMBER(major, minor, patch) ((major)*0x10000 + (minor)*0x100 + (patch))
#define AAA_ATTR_VERSION AAA_ATTR_VERSION_NUMBER(AAA_ATTR_VERSION_MAJOR, AAA_ATTR_VERSION_MINOR, AAA_ATTR_VERSION_PATCH)

/* The version as text: "1.0.0". The other two make it. */
#define AAA_ATTR_VERSION_TEXT \
  AAA_ATTR_VERSION_DOTTED(AAA_ATTR_VERSION_MAJOR, AAA_ATTR_VERSION_MINOR, AAA_ATTR_VERSION_PATCH)
#define AAA_ATTR_VERSION_DOTTED(major, minor, patch) AAA_ATTR_VERSION_QUOTED(major, minor, patch)
#define AAA_ATTR_VERSION_QUOTED(major, minor, patch) #major "." #minor "." #patch

/* Returns the version of the library that runs, like "1.0.0". A program that meets an older one than it was compiled
   with may miss functions in it.
   number: gets the version as AAA_ATTR_VERSION has it; may be null.
   Owner: the library; constant text. */
AAA_API const char *aaa_attr_version(uint32_t *number) AAA_NOEXCEPT;

AAA_END_DECLS

#endif
