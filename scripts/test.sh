#!/usr/bin/env bash
# Builds and tests the given targets, or all; continues after a failure. `lint` and `dist` (the packages) are targets
# too.
#
#   scripts/test.sh [TARGET...]
#
# Two targets run at once, each with half of the processors: many steps of a target cannot use more than one. Ends with
# one line per target and a count. Fails if a target failed, and in CI also if one was skipped.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

# The longest first, so that both halves end at about the same time.
all_targets=(linux-x64 windows-x86 linux-x64-asan windows-x64 linux-x86-asan linux-x86 lint
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

# Where the target's output goes; not in its folder, which it may clear.
log_of() {
  echo "build/test-logs/$1.log"
}

run_target() {
  case $1 in
    lint) scripts/lint.sh ;;
    dist) scripts/dist.sh --of-tests && tests/packaging/dist_test.sh build/dist ;;
    *) cmake --preset "$1" && cmake --build --preset "$1" && ctest --preset "$1" --parallel "$CTEST_PARALLEL_LEVEL" ;;
  esac
}

# The packages are made of what other targets have built.
must_wait() {
  [[ $1 == dist && " ${target_of[*]} " =~ \ (linux-x64|windows-x86|windows-x64)\  ]]
}

declare -A started=() target_of=()  # by target; by the process that runs it
passed=0 failed=0 skipped=0
results=()

start() {
  local reason
  reason=$(obstacle "$1")
  if [[ -n $reason ]]; then
    skipped=$((skipped + 1))
    results+=("$1: skipped: $reason")
    return
  fi
  printf '== %s\n' "$1"
  started[$1]=$SECONDS
  set -m  # a process group of its own, so that stop_all can end it
  run_target "$1" </dev/null >"$(log_of "$1")" 2>&1 &
  set +m
  target_of[$!]=$1
}

finish_one() {
  local process target status=0
  wait -n -p process "${!target_of[@]}" || status=$?
  target=${target_of[$process]}
  unset "target_of[$process]"
  if [[ $status -eq 0 ]]; then
    passed=$((passed + 1))
    results+=("$target: passed")
  else
    failed=$((failed + 1))
    results+=("$target: failed (see $(log_of "$target"))")
    tail -n 60 "$(log_of "$target")"
  fi
  printf -- '-- %s took %d s' "$target" "$((SECONDS - started[$target]))"
  sed -nE 's/^([0-9]+% tests passed.*)/: \1/p' "$(log_of "$target")" | tr -d '\n'
  printf '\n'
}

stop_all() {
  local process
  for process in "${!target_of[@]}"; do kill -- "-$process" || true; done
  if command -v wineserver >/dev/null && [[ -d build/wine-prefix ]]; then
    WINEPREFIX=$PWD/build/wine-prefix wineserver -k || true  # none may run
  fi
}
trap stop_all EXIT

mkdir -p build/test-logs
# Wine takes a while to set up its prefix; other targets can run meanwhile.
if [[ " ${targets[*]} " == *" windows-"* ]] && command -v wine >/dev/null; then
  scripts/wine.sh hostname >build/test-logs/wine.log 2>&1 &
fi
processors=$(nproc)
at_once=$((processors > 1 && ${#targets[@]} > 1 ? 2 : 1))
export CMAKE_BUILD_PARALLEL_LEVEL=$((processors / at_once)) CTEST_PARALLEL_LEVEL=$((processors / at_once))
for target in "${targets[@]}"; do
  while [[ ${#target_of[@]} -ge $at_once ]] || must_wait "$target"; do finish_one; done
  start "$target"
done
while [[ ${#target_of[@]} -gt 0 ]]; do finish_one; done

printf '\n'
printf '%s\n' "${results[@]}"
summary="$passed passed, $failed failed"
[[ $skipped -eq 0 ]] || summary+=", $skipped skipped"
printf '%s\n' "$summary"

[[ $failed -eq 0 ]] || exit 1
# A skipped target has not passed: CI must notice.
[[ $skipped -eq 0 || -z ${CI:-} ]] || exit 1
