/* checked.h: what the checked handle table (libattrmgr_checked) offers beside the four handle calls of aaa_platform.h.

   The checked table is a second library, put in front of libattrmgr by LD_PRELOAD or by linking it first. It maps
   handles that are no addresses, never gives one out twice, and reports lists that were never freed and handles that
   name none. docs/debugging.md shows it at work, and the options that the environment variable ATTRMGR_CHECKED takes.
 */
#ifndef ATTRMGR_CHECKED_H
#define ATTRMGR_CHECKED_H

#include <stdint.h>

#include <attrmgr/aaa_export.h>

AAA_BEGIN_DECLS

/* Writes a report now, to where the report at exit goes: the lists that are in use, and the misuses so far. Writes
   nothing where there is nothing to tell. Lists that other threads change meanwhile may be shown half changed.

   For programs that are linked with libattrmgr_checked; in one that has it preloaded, dlsym(RTLD_DEFAULT, ...) finds
   the function.

   Returns the number of lists and misuses told of. */
AAA_API uint32_t attrmgr_checked_report(void);

AAA_END_DECLS

#endif
