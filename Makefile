# What a person types; CMakePresets.json holds the builds themselves.

# A failing program must not hide behind the one it is piped into.
SHELL := bash
.SHELLFLAGS := -euo pipefail -c

BUILD := build/linux-x64
DUMP := $(BUILD)/bin/kelvra-dump
CXX_FILES = $(shell find src tools tests -name '*.cpp' -o -name '*.h')

.PHONY: all demo test records format lint clean

# The library and the viewer.
all:
	scripts/setup.sh demo
	cmake --preset linux-x64 -DKELVRA_BUILD_TESTS=OFF
	cmake --build --preset linux-x64 --parallel

# Decodes a recorded call: first one line for each message, then their contents. The viewer's
# status 1 stands for messages of which octets were left over, here H.245 ones that are only named.
demo:
	scripts/setup.sh demo
	cmake --preset linux-x64 -DKELVRA_BUILD_TESTS=OFF
	cmake --build --preset linux-x64 --parallel --target kelvra-dump
	$(DUMP) samples/call.pcap || [[ $$? -eq 1 ]]
	@echo
	{ $(DUMP) --format tree samples/call.pcap || [[ $$? -eq 1 ]]; } | sed -n 1,60p

test:
	scripts/setup.sh test
	scripts/test.sh

# The table of every record's members, which the tests compare with the headers.
records:
	scripts/setup.sh test
	scripts/records.py write

format:
	scripts/setup.sh lint
	clang-format -i $(CXX_FILES)

lint:
	scripts/setup.sh lint
	scripts/lint.sh

clean:
	rm -rf build
