// must.h: how the C programs of the guide treat failures. Fit for examples, not for a daemon: the chapter on errors.
#pragma once

#include <attrmgr/attrmgr.h>
#include <stdio.h>
#include <stdlib.h>

// [must]
// Ends the program when a call has failed.
static inline void must(aaa_attr_cerrno code) {
  if (code == 0) return;
  fprintf(stderr, "%s\n", aaa_attr_cerrno_text(code));
  exit(1);
}
// [must]
