#!/usr/bin/env bash
# Holds a built shared library against symbols.txt (what it exports, no more and no less), replaceable.txt (which of that
# it calls through dynamic symbols) and imports.txt (what it may ask for), and sees that a test calls each function and
# that it needs the C library and nothing else.
set -eu
export LC_ALL=C
library=$1
here=$(dirname "$0")
nm=${NM:-nm}
readelf=${READELF:-readelf}
failed=0

# The names of an expectation file, comments left out.
names() { sed 's/#.*//; s/[[:space:]]*$//; /^$/d' "$here/$1" | sort; }

# Says each line of standard input with the text in front; any line is a failure.
complain() {
  local line
  while read -r line; do
    echo "$1: $line"
    failed=1
  done
}

exported=$("$nm" -D --defined-only "$library" | awk '$2 != "A" { sub(/@.*/, "", $3); print $3 }' | sort)
functions=$("$nm" -D --defined-only "$library" | awk '$2 ~ /[TW]/ { sub(/@.*/, "", $3); print $3 }' | sort)
bound=$("$readelf" -rW "$library" | awk 'NF > 4 { sub(/@.*/, "", $5); print $5 }' | sort -u)
replaceable=$(comm -12 <(echo "$functions") <(echo "$bound"))
imported=$("$nm" -D --undefined-only "$library" | awk '{ sub(/@.*/, "", $2); print $2 }' | sort)
needed=$("$readelf" -d "$library" | sed -n 's/.*(NEEDED).*\[\(.*\)\]/\1/p')
if [ -z "$exported" ] || [ -z "$imported" ]; then
  echo "no symbols read from $library"
  exit 1
fi

complain "exported, but not in symbols.txt" < <(comm -23 <(echo "$exported") <(names symbols.txt))
complain "in symbols.txt, but not exported" < <(comm -13 <(echo "$exported") <(names symbols.txt))
complain "called through its dynamic symbol, but not in replaceable.txt" < <(comm -23 <(echo "$replaceable") <(names replaceable.txt))
complain "in replaceable.txt, but not called through its dynamic symbol" < <(comm -13 <(echo "$replaceable") <(names replaceable.txt))
complain "exported, but no test calls it" < <(echo "$functions" | while read -r function; do
  grep -rqw --include='*.c' --include='*.cpp' "$function" "$here/.." || echo "$function"
done)
complain "imported, but not allowed by imports.txt" < <(comm -23 <(echo "$imported") <(names imports.txt))
complain "needs a library beside the C library" < <(grep -vx 'libc\.so\.6' <<<"$needed")
exit $failed
