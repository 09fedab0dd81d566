#!/usr/bin/env bash
# Fuzzes the decoders for a long time, keeping the corpus between runs.
#
#   scripts/fuzz.sh [-e ENGINE] [-t SECONDS] [FAMILY...]
#
# ENGINE is x64 (libFuzzer, the default), x86 (libFuzzer on the 32-bit library)
# or afl (AFL++, Debian: afl++). The families, by default all, run one after
# the other for SECONDS each, four hours by default. Corpora are kept in
# build/fuzz-corpus/FAMILY, which all engines share; finds are left in
# build/fuzz-finds/FAMILY. Fails when there is a find.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

engine=x64
seconds=14400
while getopts e:t: option; do
  case $option in
    e) engine=$OPTARG ;;
    t) seconds=$OPTARG ;;
    *) exit 2 ;;
  esac
done
shift $((OPTIND - 1))
families=("$@")
[[ $# -gt 0 ]] || families=(ras q931 h245)

case $engine in
  x64 | x86) preset=linux-$engine-fuzz ;;
  afl) preset=linux-x64-afl ;;
  *)
    printf 'fuzz: no engine %s\n' "$engine" >&2
    exit 2
    ;;
esac

# The largest message, and the limits for one: the sanitizers make a decode about twenty times slower.
longest=65535
slowest_seconds=1

# Freed blocks wait in 32 MB, more than any message claims, and keep their pages: page faults would take a quarter of
# the CPU time.
with_libfuzzer() {  # FAMILY CORPUS FINDS
  ASAN_OPTIONS=quarantine_size_mb=32:allocator_release_to_os_interval_ms=-1 \
    "build/$preset/bin/kelvra_fuzz_$1" \
    -max_total_time="$seconds" -timeout="$slowest_seconds" -max_len="$longest" \
    -rss_limit_mb=1024 -malloc_limit_mb=17 -print_final_stats=1 -verbosity=1 \
    -dict=fuzz/kelvra.dict -artifact_prefix="$3/" "$2" 2>&1 | tee "$3.log" | tail -n 30
}

with_afl() {  # FAMILY CORPUS FINDS
  local out=build/fuzz-afl/$1
  AFL_SKIP_CPUFREQ=1 AFL_NO_UI=1 AFL_AUTORESUME=1 \
    AFL_I_DONT_CARE_ABOUT_MISSING_CRASHES=1 AFL_IGNORE_PROBLEMS=1 \
    afl-fuzz -V "$seconds" -t "${slowest_seconds}000" -m none -G "$longest" \
    -x fuzz/kelvra.dict -i "$2" -o "$out" -- "build/$preset/bin/kelvra_fuzz_$1" \
    >"$3.log" 2>&1 || { tail -n 30 "$3.log"; return 1; }
  grep -E '^(execs_done|edges_found|saved_crashes|saved_hangs) ' "$out/default/fuzzer_stats"
  cp "$out"/default/queue/id* "$2"
  find "$out/default/crashes" "$out/default/hangs" -name 'id*' -exec cp {} "$3" \;
}

cmake --preset "$preset" >/dev/null
cmake --build --preset "$preset" --parallel

finds=0
for family in "${families[@]}"; do
  corpus=build/fuzz-corpus/$family
  found=build/fuzz-finds/$family
  mkdir -p "$corpus" "$found"
  cp "build/$preset/fuzz/seeds/$family"/* fuzz/regressions/"$family"/* "$corpus"
  printf '== %s, %s, %d s\n' "$family" "$engine" "$seconds"
  if [[ $engine == afl ]]; then
    with_afl "$family" "$corpus" "$found" || finds=1
  else
    with_libfuzzer "$family" "$corpus" "$found" || finds=1
  fi
  if [[ -n "$(ls "$found")" ]]; then
    printf 'fuzz: finds in %s\n' "$found" >&2
    finds=1
  fi
done
exit "$finds"
