#!/usr/bin/env python3
"""Compares the output that docs/viewer.md and README.md show with what the viewer prints, or renews it.

Usage: guide.py check|write KELVRA_DUMP

A block of `sh` is run in bash, in the folder of the repository; the block of `text` right after it holds its output. A
block of `sh` without one is run too, and must print something; in the README, whose other blocks build and install,
it is not.
"""
import os
import re
import subprocess
import sys

TOP = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
GUIDE = os.path.join("docs", "viewer.md")
README = "README.md"
BLOCK = re.compile(r"```sh\n(?P<command>.*?)```\n(?:\n```text\n(?P<output>.*?)```\n)?", re.DOTALL)


def output_of(command, viewer):
    """The output of the command with kelvra-dump as the viewer; standard error appears in its place."""
    path = os.path.dirname(os.path.abspath(viewer)) + os.pathsep + os.environ["PATH"]
    environment = {**os.environ, "PATH": path, "NO_COLOR": "1", "LC_ALL": "C.UTF-8"}
    result = subprocess.run(["bash", "-c", command], cwd=TOP, env=environment, stdout=subprocess.PIPE,
                            stderr=subprocess.STDOUT, timeout=120, check=False)
    return result.stdout.decode()


def renewed(page, text, viewer):
    """The corrected page, and the commands that printed nothing."""
    silent = []

    def renew(block):
        if page == README and block["output"] is None:
            return block.group()
        output = output_of(block["command"], viewer)
        if not output:
            silent.append(block["command"])
        if block["output"] is None:
            return block.group()
        return f"```sh\n{block['command']}```\n\n```text\n{output}```\n"
    return BLOCK.sub(renew, text), silent


def main():
    how, viewer = sys.argv[1:]
    failed = False
    for page in (GUIDE, README):
        path = os.path.join(TOP, page)
        with open(path, encoding="utf-8") as file:
            text = file.read()
        new, silent = renewed(page, text, viewer)
        if how == "write":
            with open(path, "w", encoding="utf-8") as file:
                file.write(new)
        for command in silent:
            print(f"guide: prints nothing: {command}", file=sys.stderr)
        stale = how == "check" and new != text
        if stale:
            print(f"guide: {page} shows other output; scripts/guide.py write KELVRA_DUMP renews it", file=sys.stderr)
        failed = failed or bool(silent) or stale
    sys.exit(failed)


if __name__ == "__main__":
    main()
