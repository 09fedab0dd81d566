# Shortcuts for people; CMakePresets.json defines the builds.

# A pipe must not hide the failure of its first program.
SHELL := bash
.SHELLFLAGS := -euo pipefail -c

BUILD := build/linux-x64
DUMP := $(BUILD)/bin/kelvra-dump
CXX_FILES = $(shell find include src tools tests fuzz bench examples -name '*.cpp' -o -name '*.h')

.PHONY: all demo test dist fuzz records digests format lint bench bench-check bench-baseline clean

# The library and the viewer.
all:
	scripts/setup.sh demo
	cmake --preset linux-x64 -DKELVRA_BUILD_TESTS=OFF -DKELVRA_BUILD_BENCH=OFF
	cmake --build --preset linux-x64 --parallel

# Decodes a recorded call: one line per message, then the contents of the first.
demo:
	scripts/setup.sh demo
	cmake --preset linux-x64 -DKELVRA_BUILD_TESTS=OFF -DKELVRA_BUILD_BENCH=OFF
	cmake --build --preset linux-x64 --parallel --target kelvra-dump
	$(DUMP) samples/call.pcap
	@echo
	$(DUMP) --format tree samples/call.pcap | sed -n 1,60p
	@printf '\nThese are the first 60 lines. docs/viewer.md is the guide; %s --help lists the options.\n' $(DUMP)

test:
	scripts/setup.sh test
	scripts/test.sh

# The packages, in build/dist.
dist:
	scripts/setup.sh test
	scripts/dist.sh

# Four hours per family with libFuzzer; scripts/fuzz.sh has other engines and times.
fuzz:
	scripts/setup.sh test
	scripts/fuzz.sh

# The table of all record members, which the tests compare with the headers.
records:
	scripts/setup.sh test
	scripts/records.py write

# Renews the digests of the records that faulty messages decode into, after an intended change, and prints which
# messages changed.
digests:
	scripts/setup.sh test
	for target in linux-x86 linux-x64; do \
	  cmake --preset $$target; \
	  cmake --build --preset $$target --parallel --target kelvra_fault_tests; \
	  KELVRA_RENEW_DIGESTS=1 build/$$target/bin/kelvra_fault_tests --gtest_brief=1 --gtest_filter='ExhaustiveFaults*'; \
	done

format:
	scripts/setup.sh lint
	clang-format -i $(CXX_FILES)

lint:
	scripts/setup.sh lint
	scripts/lint.sh

# Times the library against its floor; ARGUMENTS go to the program, such as --benchmark_filter=setup.
bench:
	scripts/setup.sh bench
	cmake --preset bench
	cmake --build --preset bench --parallel --target kelvra-bench bench_growth
	build/bench/bin/kelvra-bench $(ARGUMENTS)

# Counts instructions and compares them with bench/baseline.json, or renews that file.
bench-check bench-baseline:
	scripts/setup.sh bench
	cmake --preset bench
	cmake --build --preset bench --parallel --target $@

clean:
	rm -rf build
