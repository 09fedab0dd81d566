#!/usr/bin/env bash
# Runs clang-tidy over src/, tools/ and the headers in include/; any finding fails.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

cmake --preset linux-x64 -B build/lint -DKELVRA_BUILD_TESTS=OFF -DKELVRA_BUILD_BENCH=OFF \
  -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON >/dev/null
# The analyzer's deep mode takes five times as long as its shallow one, in which
# it follows fewer calls. The viewer's sources come joined, by inclusion.
shallow=(-extra-arg=-Xclang -extra-arg=-analyzer-config -extra-arg=-Xclang -extra-arg=mode=shallow)
command -v run-clang-tidy >/dev/null || {
  echo "lint: no run-clang-tidy; scripts/setup.sh lint installs it" >&2
  exit 1
}
# On stderr it counts the warnings of headers that it does not show.
if ! run-clang-tidy -quiet -checks=-bugprone-suspicious-include "${shallow[@]}" -p build/lint 2>build/lint/stderr.log; then
  tail -n 20 build/lint/stderr.log >&2
  exit 1
fi
