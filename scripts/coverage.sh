#!/usr/bin/env bash
# Measures the lines and branches of src/ that the tests or the fuzzing corpora reach.
#
#   scripts/coverage.sh [-c] [FOLDER...]
#
# FOLDER is src/per by default; a line for each of its files and their sum are
# printed. -c takes the corpora that scripts/fuzz.sh has left in
# build/fuzz-corpus/. Needs Clang and LLVM's tools (Debian: clang, llvm).
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

of_corpora=false
if [[ ${1:-} == -c ]]; then
  of_corpora=true
  shift
fi
folders=("$@")
[[ $# -gt 0 ]] || folders=(src/per)
build=build/coverage

# Configures with its arguments, and builds the programs in `programs`.
build_programs() {
  cmake -G Ninja -S . -B "$build" -DCMAKE_CXX_COMPILER=clang++ -DCMAKE_BUILD_TYPE=Debug \
    -DCMAKE_CXX_FLAGS="-O1 -fprofile-instr-generate -fcoverage-mapping" \
    -DKELVRA_BUILD_TOOLS=OFF "$@" >/dev/null
  cmake --build "$build" --parallel --target "${programs[@]}"
}

# Runs a program with its arguments, and keeps its coverage data.
run_program() {
  LLVM_PROFILE_FILE=$build/$1.profraw "$build/bin/$1" "${@:2}"
}

if $of_corpora; then
  build=build/coverage-of-corpora
  programs=(kelvra_fuzz_ras kelvra_fuzz_q931 kelvra_fuzz_h245)
  build_programs -DKELVRA_BUILD_TESTS=OFF -DKELVRA_FUZZ=ON
  for program in "${programs[@]}"; do
    run_program "$program" -runs=0 "build/fuzz-corpus/${program#kelvra_fuzz_}"
  done
else
  programs=(kelvra_tests kelvra_per_tests kelvra_fault_tests kelvra_regression_tests)
  build_programs -DKELVRA_BUILD_TESTS=ON
  for program in "${programs[@]}"; do
    # Faults at every bit take time and reach no further branch.
    run_program "$program" --gtest_brief=1 --gtest_filter='-*EveryBitFlipped:*EveryOctet*:*AnOctetAdded*'
  done
fi

objects=()
for program in "${programs[@]}"; do objects+=(-object "$build/bin/$program"); done
llvm-profdata merge -o "$build/all.profdata" "$build"/*.profraw
llvm-cov report "${objects[@]:1}" -instr-profile="$build/all.profdata" \
  -show-branch-summary -show-region-summary=false "${folders[@]}"
