#!/usr/bin/env bash
# Checks that each public header compiles alone, whichever compiler its user has.
#
#   scripts/check-headers.sh INCLUDE_ROOT "COMPILER FLAGS" HEADER...
#   scripts/check-headers.sh INCLUDE_ROOT clang HEADER...
#
# The latter is Clang as it is and as the Windows compiler for x86 and x64. For Windows there is no C
# library here, so the headers may include only what a compiler itself provides. No include directory
# is given: the headers find each other.
set -euo pipefail

root=$1
compiler=$2
shift 2

warnings=(-Wall -Wextra -Wconversion -Wshadow -Wpedantic -Werror)
checks=0
failures=0

# check HEADER COMMAND... : compiles a file that includes nothing but HEADER,
# twice, for a missing include guard to show.
check() {
  local header=$1
  shift
  checks=$((checks + 1))
  if ! printf '#include "%s"\n#include "%s"\n' "$root/$header" "$root/$header" |
    "$@" -std=c++20 "${warnings[@]}" -fsyntax-only -x c++ -; then
    failures=$((failures + 1))
    printf 'headers: %s fails with: %s\n' "$header" "$*" >&2
  fi
}

[[ $# -gt 0 ]] || {
  echo "headers: no public header found" >&2
  exit 1
}

if [[ $compiler == clang ]] && ! command -v clang++ >/dev/null; then
  echo "headers: no clang++; scripts/setup.sh test installs it" >&2
  exit 1
fi

for header in "$@"; do
  if [[ $compiler != clang ]]; then
    read -r -a command <<<"$compiler"
    check "$header" "${command[@]}"
    continue
  fi
  check "$header" clang++
  for arch in i686 x86_64; do
    check "$header" clang++ "--target=$arch-pc-windows-msvc" \
      -fms-extensions -fms-compatibility -ffreestanding
  done
done

printf 'headers: %d of them, %d compilations, %d failed\n' "$#" "$checks" "$failures"
[[ $failures -eq 0 ]]
