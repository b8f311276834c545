"""Loaded by GDB with the library. The views themselves lie in SHARE/attrmgr/gdb; this file in
SHARE/gdb/auto-load/LIBRARY FOLDER, where GDB looks for it."""

import os
import sys

import gdb

FOLDER = os.path.join(os.path.dirname(__file__).split("/gdb/auto-load")[0], "attrmgr", "gdb")
if FOLDER not in sys.path:
    sys.path.insert(0, FOLDER)

from attrmgr_views import gdb_side  # noqa: E402

gdb_side.register(gdb.current_objfile())
