#!/usr/bin/env bash
# Measures which lines and branches of src/ the tests reach.
#
#   scripts/coverage.sh [FOLDER...]
#
# FOLDER is src/per by default; a line for each of its files and their sum are
# printed. Needs Clang and LLVM's tools.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

folders=("$@")
[[ $# -gt 0 ]] || folders=(src/per)
build=build/coverage
programs=(kelvra_tests kelvra_fault_tests kelvra_regression_tests)

cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_COMPILER=clang++ \
  -DCMAKE_CXX_FLAGS="-O1 -fprofile-instr-generate -fcoverage-mapping" \
  -DKELVRA_BUILD_TESTS=ON -DKELVRA_BUILD_TOOLS=OFF >/dev/null
cmake --build "$build" --parallel --target "${programs[@]}"

objects=()
for program in "${programs[@]}"; do
  # The faults at every bit add time and no branch.
  LLVM_PROFILE_FILE=$build/$program.profraw "$build/bin/$program" \
    --gtest_brief=1 --gtest_filter='-*EveryBitFlipped:*AnOctetAdded*'
  objects+=(-object "$build/bin/$program")
done
llvm-profdata merge -o "$build/all.profdata" "$build"/*.profraw
llvm-cov report "${objects[@]:1}" -instr-profile="$build/all.profdata" \
  -show-branch-summary -show-region-summary=false "${folders[@]}"
