#!/usr/bin/env bash
# Checks that a built library has no writable variables except those allowed.
#
#   scripts/check-globals.sh NM LIBRARY NAME...
#
# NAME is part of the mangled name of an allowed variable. Only namespace kelvra and anonymous namespaces are checked,
# not the libraries of the compiler and the system.
set -euo pipefail

nm=$1
library=$2
shift 2

fail() {
  printf 'globals: %s\n' "$*" >&2
  exit 1
}

# Section and name of each of the library's own symbols.
symbols=$("$nm" --format=sysv "$library" |
  awk -F'|' '{ gsub(/ /, "", $1); gsub(/ /, "", $7) }
    tolower($1) ~ /kelvra|_global__n_/ { print $7, $1 }')
functions=$(grep -c '^\.text' <<<"$symbols" || true)
[[ $functions -gt 0 ]] || fail "$library has no function of the library; is it the right one?"

# Constants that hold addresses are in .data.rel.ro, which becomes read-only before the library runs.
writable=$(awk '$1 ~ /^\.(data|bss|tdata|tbss|tls)(\$.*)?$/ { print $2 }' <<<"$symbols")
for name in "$@"; do
  grep -q -- "$name" <<<"$writable" || fail "$library has no $name; is it the right library?"
  writable=$(grep -v -- "$name" <<<"$writable" || true)
done
if [[ -n $writable ]]; then
  fail "$library has writable variables:"$'\n'"$writable"
fi
printf 'globals: %d symbols of the library, %d of them functions; no writable variable but %s\n' \
  "$(wc -l <<<"$symbols")" "$functions" "$*"
