#!/usr/bin/env bash
# Runs clang-tidy over src/ and tools/; any finding fails.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

cmake --preset linux-x64 -B build/lint -DKELVRA_BUILD_TESTS=OFF -DKELVRA_BUILD_BENCH=OFF \
  -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON >/dev/null
# The analyzer's deep mode takes five times as long as its shallow one, in which
# it follows fewer calls. The viewer's sources come joined, by inclusion.
shallow=(-extra-arg=-Xclang -extra-arg=-analyzer-config -extra-arg=-Xclang -extra-arg=mode=shallow)
run-clang-tidy -quiet -checks=-bugprone-suspicious-include "${shallow[@]}" -p build/lint 2>/dev/null
