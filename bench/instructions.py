#!/usr/bin/env python3
"""Counts the instructions of decoding and releasing, and compares them with the baseline.

  instructions.py check PROGRAM WORKLOAD BASELINE      fails when a workload has risen by more than 2%
  instructions.py baseline PROGRAM WORKLOAD BASELINE   writes the baseline
  instructions.py show PROGRAM WORKLOAD                prints each workload's functions, costliest first
"""

import collections
import json
import pathlib
import subprocess
import sys
import tempfile

TOLERANCE = 0.02
# Functions with a smaller share of a workload are not listed by name.
SMALLEST_SHARE = 0.002


def read_dump(path):
    """Returns the dump's name and the instructions of each function, without its callees."""
    trigger, function, callee_follows = None, None, False
    costs = collections.Counter()
    for line in path.read_text().splitlines():
        if line.startswith("desc: Trigger: Client Request: "):
            trigger = line.removeprefix("desc: Trigger: Client Request: ")
        elif line.startswith("fn="):
            function = line.removeprefix("fn=")
        elif line.startswith("calls="):
            callee_follows = True
        elif line[:1].isdigit():
            if not callee_follows:
                costs[function] += int(line.split()[1])
            callee_follows = False
    return trigger, costs


def count(program, workload_file):
    """Returns messages, octets, floor, total and functions of each workload."""
    with tempfile.TemporaryDirectory() as directory:
        out = pathlib.Path(directory)
        run = subprocess.run(
            ["valgrind", "--tool=callgrind", "--collect-atstart=no", "--compress-strings=no", "--compress-pos=no",
             f"--callgrind-out-file={out}/dump", program, workload_file],
            check=False, capture_output=True, text=True)
        if run.returncode != 0:
            sys.exit(f"instructions: {run.stderr}")
        dumps = dict(read_dump(path) for path in out.glob("dump.*"))
    workloads = {}
    for line in run.stdout.splitlines():
        name, messages, octets = line.split()
        functions = dumps[f"{name} library"]
        workloads[name] = {
            "messages": int(messages), "octets": int(octets),
            "floor": sum(dumps[f"{name} floor"].values()), "total": sum(functions.values()),
            "functions": dict(functions.most_common())}
    return workloads


def print_totals(workloads):
    print(f"{'workload':24}{'messages':>9}{'octets':>8}{'floor':>9}{'library':>9}{'ratio':>7}   instructions per message")
    for name, counts in workloads.items():
        messages = counts["messages"]
        print(f"{name:24}{messages:9}{counts['octets'] / messages:8.0f}{counts['floor'] / messages:9.0f}"
              f"{counts['total'] / messages:9.0f}{counts['total'] / counts['floor']:7.2f}")


def compare(workloads, baseline):
    """Prints what has risen, and returns whether anything has."""
    missing = baseline.keys() - workloads.keys()
    for name in sorted(missing):
        print(f"{name}: in the baseline, but not counted")
    risen = bool(missing)
    for name, counts in workloads.items():
        before = baseline.get(name)
        if before is None or before["messages"] != counts["messages"] or before["octets"] != counts["octets"]:
            print(f"{name}: the messages are not those of the baseline; `make bench-baseline` renews it")
            risen = True
            continue
        rise = counts["total"] / before["total"] - 1
        if rise <= TOLERANCE:
            continue
        risen = True
        print(f"{name}: {before['total']} -> {counts['total']} instructions ({rise:+.1%}); what rose most:")
        unnamed = SMALLEST_SHARE * before["total"]
        rises = {function: cost - before["functions"].get(function, unnamed)
                 for function, cost in counts["functions"].items()}
        for function in sorted(rises, key=rises.get, reverse=True)[:5]:
            if rises[function] > 0:
                print(f"  {rises[function]:+9.0f}  {function}")
    return risen


def kept(counts):
    functions = {function: cost for function, cost in counts["functions"].items()
                 if cost >= SMALLEST_SHARE * counts["total"]}
    return {**counts, "functions": functions}


def main():
    if len(sys.argv) < 4 or sys.argv[1] not in ("check", "baseline", "show"):
        sys.exit(__doc__)
    action, program, workload_file = sys.argv[1:4]
    workloads = count(program, workload_file)
    print_totals(workloads)
    if action == "show":
        limit = 30
        for name, counts in workloads.items():
            print(f"\n{name}")
            for function, cost in list(counts["functions"].items())[:limit]:
                print(f"{cost / counts['messages']:9.0f} {cost / counts['total']:6.1%}  {function}")
    elif action == "baseline":
        baseline = {name: kept(counts) for name, counts in workloads.items()}
        pathlib.Path(sys.argv[4]).write_text(json.dumps(baseline, indent=1) + "\n")
    elif compare(workloads, json.loads(pathlib.Path(sys.argv[4]).read_text())):
        sys.exit(1)


main()
