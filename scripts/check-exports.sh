#!/usr/bin/env bash
# Checks what a built shared library exports, and what a DLL imports.
#
#   scripts/check-exports.sh LIBRARY DEF COUNT
#
# It must export the COUNT names that DEF lists and nothing else. A DLL must need only
# what every Windows has.
set -euo pipefail

library=$1
def=$2
count=$3

fail() {
  printf 'exports: %s\n' "$*" >&2
  exit 1
}

wanted=$(sed -e 's/;.*//' -e '0,/^[[:space:]]*EXPORTS/d' "$def" |
  awk 'NF { print $1 }' | sort)
[[ -n $wanted && $(wc -l <<<"$wanted") -eq $count ]] || fail "$def does not list $count names"

case $library in
  *.dll)
    headers=$(objdump -p "$library")
    # The rows of the table of names: "[ 0] +base[ 1] 0000 Name" or, with an
    # older objdump, "[ 0] Name".
    exported=$(awk '/^\[Ordinal\/Name Pointer\] Table/ { table = 1; next }
      table && !/^[[:space:]]*\[/ { exit }
      table { print $NF }' <<<"$headers" | sort)
    # An export without a name appears only in the address table.
    addresses=$(awk '/^Export Address Table/ { table = 1; next }
      table && !/^[[:space:]]*\[/ { exit }
      table { count++ }
      END { print count + 0 }' <<<"$headers")
    [[ $addresses -eq $count ]] || fail "$addresses exported addresses, not $count"

    imported=$(awk '/DLL Name:/ { print tolower($3) }' <<<"$headers" | sort -u)
    [[ -n $imported ]] || fail "no import table found in $library"
    while read -r dll; do
      case $dll in
        kernel32.dll | msvcrt.dll) ;;
        *) fail "$library needs $dll" ;;
      esac
    done <<<"$imported"
    ;;
  *)
    exported=$(nm --dynamic --defined-only --format=posix "$library" |
      awk '{ print $1 }' | sort)
    ;;
esac

if [[ $exported != "$wanted" ]]; then
  diff <(printf '%s\n' "$wanted") <(printf '%s\n' "$exported") >&2 || true
  fail "$library does not export what $def lists (< listed, > exported)"
fi
printf 'exports: %s names%s\n' "$(wc -l <<<"$exported")" \
  "${imported:+; imports $(tr '\n' ' ' <<<"$imported")}"
