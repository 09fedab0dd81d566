#!/usr/bin/env bash
# Runs clang-tidy over src/ and tools/; any finding fails.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

cmake --preset linux-x64 -B build/lint -DKELVRA_BUILD_TESTS=OFF -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON >/dev/null
# The viewer's sources come joined, by inclusion.
run-clang-tidy -quiet -checks=-bugprone-suspicious-include -p build/lint 2>/dev/null
