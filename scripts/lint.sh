#!/usr/bin/env bash
# Runs clang-tidy over src/, tools/ and the headers in include/; any finding is a failure.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

cmake --preset linux-x64 -B build/lint -DKELVRA_BUILD_TESTS=OFF -DKELVRA_BUILD_BENCH=OFF \
  -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON -DKELVRA_UNITY=ON >/dev/null
# The analyzer's deep mode takes five times as long as the shallow one, which follows fewer calls. The viewer's sources
# are joined by inclusion.
shallow=(-extra-arg=-Xclang -extra-arg=-analyzer-config -extra-arg=-Xclang -extra-arg=mode=shallow)
command -v run-clang-tidy >/dev/null || {
  echo "lint: no run-clang-tidy; scripts/setup.sh lint installs it" >&2
  exit 1
}
# Findings come last: the list of commands and stderr, which counts the suppressed warnings of headers, would hide them.
# The observed decoders are the plain ones compiled again: their first unit is enough.
files='^(?!.*/kelvra_observer\.dir/Unity/unity_[1-9])'
if ! run-clang-tidy -quiet -j "${CMAKE_BUILD_PARALLEL_LEVEL:-$(nproc)}" -checks=-bugprone-suspicious-include \
  "${shallow[@]}" -p build/lint "$files" >build/lint/findings.log 2>build/lint/stderr.log; then
  tail -n 20 build/lint/stderr.log >&2
  grep -v '^clang-tidy' build/lint/findings.log >&2
  exit 1
fi
