#!/usr/bin/env bash
# Checks that a built library has no writable variable but those allowed.
#
#   scripts/check-globals.sh NM LIBRARY NAME...
#
# A NAME is part of the mangled name of a variable of the library. Of the others,
# those of the namespace kelvra and of anonymous ones are looked at, not those of
# the compiler's and the system's own libraries.
set -euo pipefail

nm=$1
library=$2
shift 2

# Constants that hold addresses lie in .data.rel.ro, which is made read-only
# before the library runs.
writable=$("$nm" --format=sysv "$library" |
  awk -F'|' '{ gsub(/ /, "", $1); gsub(/ /, "", $7) }
    $7 ~ /^\.(data|bss|tdata|tbss|tls)(\$.*)?$/ && tolower($1) ~ /kelvra|_global__n_/ { print $1 }')

for name in "$@"; do
  if ! grep -q -- "$name" <<<"$writable"; then
    printf 'globals: %s has no %s; is it the right library?\n' "$library" "$name" >&2
    exit 1
  fi
  writable=$(grep -v -- "$name" <<<"$writable" || true)
done
if [[ -n $writable ]]; then
  printf 'globals: %s has writable variables:\n%s\n' "$library" "$writable" >&2
  exit 1
fi
printf 'globals: no writable variable but %s\n' "$*"
