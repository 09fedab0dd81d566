#!/usr/bin/env python3
"""Makes a table and a plot of what bench_growth prints, in one run or several: growth_plot.py SVG <TSV >MARKDOWN

Of several runs the fastest counts.

The table holds nanoseconds, and in brackets the factor by which they grew for each doubling of the
octets; the plot has both axes logarithmic, so that what grows linearly is a straight line of slope 1.
"""

import collections
import math
import subprocess
import sys

COLOURS = {"ras": "#1f6fb4", "q931": "#c4521b", "h245": "#2f8f4e"}
DASHES = {"lists": "solid", "strings": "'-'", "additions": "'.'", "nesting": "'-.'"}
AXES = """
set terminal svg size 720,460 font 'sans-serif,12' background 'white'
set logscale x 2
set logscale y 10
set xtics ('1 KiB' 1024, '2 KiB' 2048, '4 KiB' 4096, '8 KiB' 8192, '16 KiB' 16384, '32 KiB' 32768, '64 KiB' 65536)
set ytics ('1 µs' 1e3, '10 µs' 1e4, '100 µs' 1e5)
set xrange [1024:65536]
set grid
set key outside right top reverse Left
"""


def series_of(stream):
    series = collections.defaultdict(dict)
    for line in stream:
        family, shape, octets, nanoseconds = line.split()
        points = series[family, shape]
        points[int(octets)] = min(float(nanoseconds), points.get(int(octets), math.inf))
    return {name: sorted(points.items()) for name, points in series.items()}


def growth(before, after):
    """The growth factor for doubled octets, from a step of about that size."""
    return (after[1] / before[1]) ** (math.log(2) / math.log(after[0] / before[0]))


def print_table(series):
    columns = max(len(points) for points in series.values())
    print("| | " + " | ".join(f"{2 ** i} KiB" for i in range(columns)) + " |")
    print("| --- |" + " ---: |" * columns)
    for (family, shape), points in series.items():
        cells = [f"{points[0][1]:.0f}"]
        cells += [f"{after[1]:.0f} ({growth(before, after):.2f})" for before, after in zip(points, points[1:])]
        print(f"| {family} {shape} | " + " | ".join(cells + [""] * (columns - len(cells))) + " |")


def plot(series, file):
    """Has gnuplot draw the series into an SVG file."""
    lines, data = [], []
    for (family, shape), points in series.items():
        lines.append(f"'-' with lines linewidth 2 linecolor rgb '{COLOURS[family]}' dashtype {DASHES[shape]} "
                     f"title '{family} {shape}'")
        data += [f"{octets} {nanoseconds}" for octets, nanoseconds in points] + ["e"]
    script = "\n".join([AXES, f"set output '{file}'", "plot " + ", ".join(lines), *data, ""])
    subprocess.run(["gnuplot"], input=script, text=True, check=True)


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    series = series_of(sys.stdin)
    print_table(series)
    plot(series, sys.argv[1])


main()
