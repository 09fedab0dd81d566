#!/usr/bin/env bash
# Builds and tests the given targets, or all; continues after a failure. `lint` and `dist` (the packages) are targets
# too.
#
#   scripts/test.sh [TARGET...]
#
# Ends with one line per target and a count. Fails if a target failed, and in CI also if one was skipped.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

all_targets=(lint windows-x86 linux-x86 linux-x64 windows-x64 linux-x64-asan linux-x86-asan
  linux-x64-tsan dist)
targets=("$@")
[[ $# -gt 0 ]] || targets=("${all_targets[@]}")

# Why a target cannot run on this machine; empty if it can.
obstacle() {
  case $1 in
    windows-*)
      command -v wine >/dev/null || { echo "Wine is not installed"; return; }
      [[ $1 != windows-x86 ]] || have wine32:i386 || { echo "32-bit Wine is not installed"; return; }
      [[ $1 != windows-x64 ]] || have wine64 || { echo "64-bit Wine is not installed"; return; }
      ;;
  esac
}

have() {
  # Outside Debian, assume that Wine is complete.
  command -v dpkg-query >/dev/null || return 0
  [[ "$(dpkg-query -W -f='${db:Status-Status}' "$1" 2>/dev/null)" == installed ]]
}

run_target() {
  if [[ $1 == lint ]]; then
    scripts/lint.sh
    return
  fi
  if [[ $1 == dist ]]; then
    scripts/dist.sh --of-tests && tests/packaging/dist_test.sh build/dist
    return
  fi
  cmake --preset "$1" &&
    cmake --build --preset "$1" --parallel "$(nproc)" &&
    ctest --preset "$1"
}

stop_wine() {
  if command -v wineserver >/dev/null && [[ -d build/wine-prefix ]]; then
    WINEPREFIX=$PWD/build/wine-prefix wineserver -k || true  # none may run
  fi
}
trap stop_wine EXIT

mkdir -p build/test-logs
# Wine takes a while to set up its prefix; other targets can run meanwhile.
if [[ " ${targets[*]} " == *" windows-"* ]] && command -v wine >/dev/null; then
  scripts/wine.sh hostname >build/test-logs/wine.log 2>&1 &
fi
results=()
passed=0 failed=0 skipped=0
for target in "${targets[@]}"; do
  log=build/test-logs/$target.log  # not in the target's folder, which the target may clear
  reason=$(obstacle "$target")
  if [[ -n $reason ]]; then
    skipped=$((skipped + 1))
    results+=("$target: skipped: $reason")
    continue
  fi
  printf '== %s\n' "$target"
  started=$SECONDS
  if run_target "$target" >"$log" 2>&1; then
    passed=$((passed + 1))
    results+=("$target: passed")
    grep -E '^[0-9]+% tests passed' "$log" || true
  else
    failed=$((failed + 1))
    results+=("$target: failed (see $log)")
    tail -n 60 "$log"
  fi
  printf -- '-- %s took %d s\n' "$target" "$((SECONDS - started))"
done

printf '\n'
printf '%s\n' "${results[@]}"
summary="$passed passed, $failed failed"
[[ $skipped -eq 0 ]] || summary+=", $skipped skipped"
printf '%s\n' "$summary"

[[ $failed -eq 0 ]] || exit 1
# A skipped target has not passed: CI must notice.
[[ $skipped -eq 0 || -z ${CI:-} ]] || exit 1
