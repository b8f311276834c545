#!/usr/bin/env bash
# views_test.sh PREFIX CC plain|checked: what GDB shows of the core file of views_client, with the installed library, which
# has no debug information, and the views that it loads by itself. Expected is views.txt, where lines that begin with
# "plain: " or "checked: " hold for one handle table only. Hexadecimal numbers count as equal.
set -euo pipefail
prefix=$1
cc=$2
table=$3
here=$(cd "$(dirname "$0")" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"

libdir=$(dirname "$(find "$prefix" -name libattrmgr.so)")
"$cc" -g -O0 "$here/views_client.c" -o client -I"$prefix/include" -L"$libdir" -lattrmgr -Wl,-rpath,"$libdir"
preload=''
if [ "$table" = checked ]; then preload=libattrmgr_checked.so; fi  # found by the client's run path

# A copy without any debug information makes the same core file.
views=(gdb -q -nx -batch -iex "add-auto-load-safe-path $prefix"
  -iex "add-auto-load-scripts-directory $prefix/share/gdb/auto-load")
gdb -q -nx -batch -iex 'set auto-load no' -ex "set environment LD_PRELOAD $preload" -ex 'break paused' -ex run \
  -ex 'generate-core-file core' client >gdb.log 2>&1 || { cat gdb.log; exit 1; }
[ -s core ] || { cat gdb.log; exit 1; }

normal() { sed -E 's/0x[0-9a-f]+/0xN/g; s/made at .*views_client/made at views_client/'; }

# Each line by itself: a file of commands would end at the first that fails, and some are to fail.
commands=()
while read -r line; do commands+=(-ex "$line"); done <"$here/views.gdb"
("${views[@]}" "${commands[@]}" client core 2>&1 || true) | sed -n '/^== list/,$p' | normal >shown
sed -E "s/^$table: //; /^(plain|checked): /d" "$here/views.txt" >expected
diff -u expected shown || { echo "GDB does not show what views.txt says"; exit 1; }

for secret in hushhush tapped; do
  if grep -q "$secret" shown; then echo "a secret is shown: $secret"; exit 1; fi
done

# The handle is all that is known where the program, too, has no debug information.
handle=$("${views[@]}" -ex up -ex 'output/x (unsigned long) list' client core 2>/dev/null | tail -n 1)
strip client -o stripped
"${views[@]}" -ex "attrmgr list $handle" stripped core 2>/dev/null | sed -n '/^list/,$p' | sed 's/, made at .*//' |
  normal >stripped.shown
awk '/^\$2/ { exit } /^list/ { on = 1 } on' shown | sed 's/, made at .*//' >with_symbols
diff -u with_symbols stripped.shown || { echo "without debug information of the program, a list looks different"; exit 1; }
