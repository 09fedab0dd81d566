#!/usr/bin/env python3
"""Compares the output that docs/viewer.md shows with what the viewer prints, or renews it.

Usage: guide.py check|write KELVRA_DUMP

A block of `sh` in the guide is run in bash, in the folder of the repository; the block of `text` right after it holds
its output. A block of `sh` without one is run too, and must print something.
"""
import os
import re
import subprocess
import sys

TOP = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
GUIDE = os.path.join(TOP, "docs", "viewer.md")
BLOCK = re.compile(r"```sh\n(?P<command>.*?)```\n(?:\n```text\n(?P<output>.*?)```\n)?", re.DOTALL)


def output_of(command, viewer):
    """What the command prints where kelvra-dump is the viewer; standard error stands where it is printed."""
    path = os.path.dirname(os.path.abspath(viewer)) + os.pathsep + os.environ["PATH"]
    environment = {**os.environ, "PATH": path, "NO_COLOR": "1", "LC_ALL": "C.UTF-8"}
    result = subprocess.run(["bash", "-c", command], cwd=TOP, env=environment, stdout=subprocess.PIPE,
                            stderr=subprocess.STDOUT, timeout=120, check=False)
    return result.stdout.decode()


def renewed(guide, viewer):
    """The guide as it should be, and the commands that printed nothing."""
    silent = []

    def renew(block):
        output = output_of(block["command"], viewer)
        if not output:
            silent.append(block["command"])
        if block["output"] is None:
            return block.group()
        return f"```sh\n{block['command']}```\n\n```text\n{output}```\n"
    return BLOCK.sub(renew, guide), silent


def main():
    how, viewer = sys.argv[1:]
    with open(GUIDE, encoding="utf-8") as file:
        guide = file.read()
    new, silent = renewed(guide, viewer)
    if how == "write":
        with open(GUIDE, "w", encoding="utf-8") as file:
            file.write(new)
    for command in silent:
        print(f"guide: prints nothing: {command}", file=sys.stderr)
    if how == "check" and new != guide:
        print("guide: docs/viewer.md shows other output; scripts/guide.py write KELVRA_DUMP renews it", file=sys.stderr)
    sys.exit(bool(silent) or (how == "check" and new != guide))


if __name__ == "__main__":
    main()
