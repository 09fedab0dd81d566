#!/usr/bin/env python3
"""Instructions that the worst messages take to decode and release: check_cost.py WORST_CASES

Fails when one of the longest takes more than MOST, or when a message of twice the octets takes more than RATIO
times as many. Unlike time, instructions do not depend on what else the machine does.
"""
import pathlib
import subprocess
import sys
import tempfile

MOST = 30_000_000  # 15 ms at two instructions a nanosecond
RATIO = 2.2
# Half a millisecond. Smaller costs are not judged for growth: bounds start to apply there, and searches start to wrap.
SMALLEST = 1_300_000


def counts(program):
    with tempfile.TemporaryDirectory() as directory:
        subprocess.run(["valgrind", "--tool=callgrind", "--collect-atstart=no",
                        f"--callgrind-out-file={directory}/dump", program], check=True, capture_output=True)
        for path in pathlib.Path(directory).glob("dump.*"):
            name, total = None, 0
            for line in path.read_text().splitlines():
                if line.startswith("desc: Trigger: Client Request: "):
                    size, name = line.removeprefix("desc: Trigger: Client Request: ").split(" ", 1)
                elif line.startswith(("summary:", "totals:")):
                    total = max(total, int(line.split()[1]))
            if name:
                yield name, int(size), total


def main():
    table = {}
    for name, size, instructions in counts(sys.argv[1]):
        table.setdefault(name, {})[size] = instructions
    failed = not table
    for name, by_size in sorted(table.items()):
        row = [by_size[size] for size in sorted(by_size)]
        ratio = max(longer / max(shorter, SMALLEST) for shorter, longer in zip(row, row[1:]))
        bad = row[-1] > MOST or ratio > RATIO
        failed |= bad
        print(f"{name:34}", *(f"{instructions:12,}" for instructions in row), f"{ratio:6.2f}", "TOO MUCH" * bad)
    sys.exit(failed)


main()
