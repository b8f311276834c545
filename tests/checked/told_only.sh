#!/usr/bin/env bash
# told_only.sh WHAT CHECKED_LIBRARY PROGRAM [ARGUMENT...]: runs a test that misuses handles on purpose, with the checked
# table preloaded. The test must pass, and the report must tell of uses of WHAT, and of nothing else.
set -euo pipefail
what=$1
checked=$2
shift 2
report=$(mktemp)
trap 'rm -f "$report"' EXIT

# By name, for the loader takes a space in LD_PRELOAD for the end of a path.
ATTRMGR_CHECKED=lines=0,report=$report LD_LIBRARY_PATH=$(dirname "$checked") LD_PRELOAD=$(basename "$checked") "$@"

# Headlines alone are not indented.
headlines=$(grep -v ']:  ' "$report" | sed -E 's/^[^:]*: [0-9]+ uses? of //')
if [ "$headlines" = "$what" ]; then exit 0; fi
echo "the report should tell of uses of $what, and of nothing else:"
cat "$report"
exit 1
