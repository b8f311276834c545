/* attrmgr.h: the whole interface. Each header also stands alone.

   The library holds the attributes of network access - who logs in, with which address, for how long - in lists of
   typed attributes, the same in every process. A list is made, filled, searched, walked with a cursor, combined with
   others, and turned into bytes that another process reads in place or makes a list again. Attributes of a Grouped type
   hold lists. The dictionary says of each type its name, its format, and the names of its values.

   attrmgr.hpp is the same in C++, typed by the dictionary. */
#ifndef ATTRMGR_ATTRMGR_H
#define ATTRMGR_ATTRMGR_H

#include <attrmgr/aaa_attr.h>         /* lists: making, adding, finding, removing, combining */
#include <attrmgr/aaa_attr_dict.h>    /* attribute types, formats, names */
#include <attrmgr/aaa_attr_display.h> /* lists as text */
#include <attrmgr/aaa_attr_fault.h>   /* why a buffer is refused */
#include <attrmgr/aaa_attr_fields.h>  /* what each byte of a buffer is */
#include <attrmgr/aaa_attr_marshal.h> /* lists as bytes */
#include <attrmgr/aaa_attr_names.h>   /* constants for all types and values */
#include <attrmgr/aaa_attr_types.h>   /* result codes, handles, attribute meta */
#include <attrmgr/aaa_attr_values.h>  /* value names and authorization bitmaps */
#include <attrmgr/aaa_attr_version.h> /* of headers and library */
#include <attrmgr/aaa_cursor.h>       /* walking lists and buffers */
#include <attrmgr/aaa_platform.h>     /* handle table, pools: what a process may replace */

#endif
