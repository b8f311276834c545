#!/usr/bin/env bash
# exchange.sh ASKING... -- ANSWERING...: runs the two commands, with the words ask and answer after them, and a pipe from
# each to the other. Fails when one of them does, or when they are not done in a minute.
set -euo pipefail

asking=()
while [ "$1" != -- ]; do
  asking+=("$1")
  shift
done
shift

pipe=$(mktemp -d)
trap 'rm -rf "$pipe"' EXIT
mkfifo "$pipe/back"
# shellcheck disable=SC2094 # it is a pipe, not a file
timeout 60 "${asking[@]}" ask <"$pipe/back" | timeout 60 "$@" answer >"$pipe/back"
