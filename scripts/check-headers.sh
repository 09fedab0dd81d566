#!/usr/bin/env bash
# Checks that the public headers suit whichever compiler their user has: scripts/check-headers.sh INCLUDE_ROOT
#
# - Each header compiles alone, with Clang as it is and as the Windows compiler for x86 and x64. For Windows there is
#   no C library here: scripts/freestanding/ stands in for it. (With the target's own compiler CMake compiles each
#   header, by VERIFY_INTERFACE_HEADER_SETS.)
# - They use standard C++ only, but for what they use under a condition on the compiler. Clang itself takes many words
#   that the Windows compiler does not, also when it compiles for Windows.
# - kelvra/kelvra_c.h is C99 too, and says so where it stands before kelvra/kelvra.h.
# - After kelvra/kelvra.h no macro is left defined but those that it documents.
set -euo pipefail
export LC_ALL=C

root=$(realpath "$1")
stand_in=$(realpath "$(dirname "${BASH_SOURCE[0]}")")/freestanding
cd /  # elsewhere Clang would name the headers relative to where it runs
documented_macros=(KELVRA_API KELVRA_CALL)
failures=0

fail() {
  failures=$((failures + 1))
  printf 'headers: %s\n' "$*" >&2
}

command -v clang++ >/dev/null || {
  echo "headers: no clang++; scripts/setup.sh test installs it" >&2
  exit 1
}
mapfile -t headers < <(cd "$root" && find . -name '*.h' -printf '%P\n' | sort)
[[ ${#headers[@]} -gt 0 ]] || {
  echo "headers: no public header found" >&2
  exit 1
}

# clang_for TARGET ARGUMENT... : Clang itself, as the Windows compiler, or as an unknown compiler.
clang_for() {
  local target=$1 options=()
  shift
  case $target in
    native) ;;
    unknown) options=(-ffreestanding -nostdlibinc -isystem "$stand_in" -U__GNUC__ -U__clang__) ;;
    *) options=("--target=$target" -fms-extensions -fms-compatibility -ffreestanding -isystem "$stand_in") ;;
  esac
  clang++ "${options[@]}" -std=c++17 -I "$root" -x c++ "$@" -
}
windows=(i686-pc-windows-msvc x86_64-pc-windows-msvc)

include() { printf '#include "%s"\n' "$@"; }

# --- Each header alone, and twice to detect a missing include guard ---

warnings=(-Wall -Wextra -Wconversion -Wshadow -Wpedantic -Werror)
compilations=0
for header in "${headers[@]}"; do
  for target in native "${windows[@]}"; do
    compilations=$((compilations + 1))
    include "$header" "$header" | clang_for "$target" "${warnings[@]}" -fsyntax-only ||
      fail "$header does not compile alone for $target"
  done
done

# --- The C header ---

c_header=kelvra/kelvra_c.h
for target in native "${windows[@]}"; do
  for compiler in clang gcc; do
    options=()
    if [[ $target != native ]]; then
      [[ $compiler == clang ]] || continue
      options=("--target=$target" -fms-extensions -fms-compatibility -ffreestanding -isystem "$stand_in")
    fi
    compilations=$((compilations + 1))
    include "$c_header" "$c_header" |
      "$compiler" "${options[@]}" -std=c99 -I "$root" "${warnings[@]}" -fsyntax-only -x c - ||
      fail "$c_header does not compile as C99 with $compiler for $target"
  done
done
include kelvra/kelvra.h "$c_header" | clang_for native "${warnings[@]}" -fsyntax-only ||
  fail "$c_header does not compile after kelvra/kelvra.h"
refusal=$(include "$c_header" kelvra/kelvra.h | clang_for native -fsyntax-only 2>&1) || true
[[ $refusal == *"include kelvra/kelvra.h before it"* ]] || fail "$c_header is not refused before kelvra/kelvra.h"

# --- Compiler extensions ---

# Prints FILE:LINE:TEXT of the public headers' lines that a compiler of this target sees, without comments.
lines_seen_by() {
  include "${headers[@]}" | clang_for "$1" -E -dD | awk -v root="$root/" '
    /^# [0-9]+ "/ {
      line = $2
      file = $0
      sub(/^# [0-9]+ "/, "", file)
      sub(/".*/, "", file)
      while (sub(/[^\/]+\/\.\.\//, "", file)) {}
      next
    }
    index(file, root) == 1 { print substr(file, length(root) + 1) ":" line ":" $0 }
    { line++ }'
}

# Names that begin with two underscores, or one and a capital, belong to a compiler, except for a few in the standard.
word='(^|[^[:alnum:]_])'
standard="__VA_ARGS__|__cplusplus"
of_windows="__forceinline|__cdecl"
lines=0
for target in unknown "${windows[@]}"; do
  seen=$(lines_seen_by "$target")
  files=$(cut -d: -f1 <<<"$seen" | sort -u | grep -c .) || true
  [[ $files -eq ${#headers[@]} ]] || fail "$files of ${#headers[@]} headers were searched as seen by $target"
  lines=$((lines + $(wc -l <<<"$seen")))
  allowed=$standard
  [[ $target == unknown ]] || allowed+="|$of_windows"
  found=$(sed -E "s/$word($allowed)\b/\1/g" <<<"$seen" |
    grep -E "$word(__[[:alnum:]]|_[[:upper:]]|asm\b)|\[\[ *(gnu|clang|msvc) *::" | sort -u) || true
  [[ -z $found ]] || fail "not standard C++, as seen by $target:"$'\n'"$found"
done

# --- Leftover macros ---

macros_after() { include "$@" | clang_for "$target" -E -dM | awk '{ sub(/\(.*/, "", $2); print $2 }' | sort; }
for target in native "${windows[@]}"; do
  left=$(comm -13 <(macros_after stdint.h string.h) <(macros_after stdint.h string.h kelvra/kelvra.h))
  [[ $left == "$(printf '%s\n' "${documented_macros[@]}")" ]] ||
    fail "kelvra/kelvra.h leaves other macros than ${documented_macros[*]} for $target:"$'\n'"$left"
done

printf 'headers: %d of them, %d compilations, %d lines searched, %d macros left, %d failures\n' \
  "${#headers[@]}" "$compilations" "$lines" "$(wc -l <<<"$left")" "$failures"
[[ $failures -eq 0 ]]
