#!/usr/bin/env bash
# bogus_only.sh CHECKED_LIBRARY PROGRAM [ARGUMENT...]: runs a test with the checked table preloaded. The test must pass,
# and the report must tell of numbers that never were a handle, and of nothing else.
set -euo pipefail
checked=$1
shift
report=$(mktemp)
trap 'rm -f "$report"' EXIT

ATTRMGR_CHECKED=lines=0,report=$report LD_PRELOAD=$checked "$@"

# Headlines alone are not indented.
headlines=$(grep -v ']:  ' "$report" | sed -E 's/^[^:]*: [0-9]+ //')
if [[ $headlines =~ ^uses?\ of\ numbers\ that\ never\ were\ a\ handle$ ]]; then exit 0; fi
echo "the report should tell of numbers that never were a handle, and of nothing else:"
cat "$report"
exit 1
