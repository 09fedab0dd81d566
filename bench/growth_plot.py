#!/usr/bin/env python3
"""Makes a table and a plot of what bench_growth prints, in one run or several: growth_plot.py SVG <TSV >MARKDOWN

Of several runs the fastest counts.

The table holds nanoseconds, and in brackets the factor by which they grew for each doubling of the
octets; the plot has both axes logarithmic, so that what grows linearly is a straight line of slope 1.
"""

import collections
import math
import pathlib
import sys

WIDTH, HEIGHT, MARGIN = 720, 460, 60
COLOURS = {"ras": "#1f6fb4", "q931": "#c4521b", "h245": "#2f8f4e"}
DASHES = {"lists": "", "strings": "8 4", "additions": "2 4", "nesting": "10 3 2 3"}


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


def plot(series):
    points = [point for line in series.values() for point in line]
    bounds = [(math.log10(min(p[i] for p in points)), math.log10(max(p[i] for p in points))) for i in (0, 1)]

    def place(point):
        across, up = ((math.log10(v) - low) / (high - low) for v, (low, high) in zip(point, bounds))
        return MARGIN + across * (WIDTH - 2 * MARGIN - 100), HEIGHT - MARGIN - up * (HEIGHT - 2 * MARGIN)

    parts = [f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {WIDTH} {HEIGHT}" '
             'font-family="sans-serif" font-size="12">',
             f'<rect width="{WIDTH}" height="{HEIGHT}" fill="white"/>']
    for kib in (1, 2, 4, 8, 16, 32, 64):
        x = place((kib * 1024, 10 ** bounds[1][0]))[0]
        parts.append(f'<line x1="{x:.1f}" y1="{MARGIN}" x2="{x:.1f}" y2="{HEIGHT - MARGIN}" stroke="#ddd"/>'
                     f'<text x="{x:.1f}" y="{HEIGHT - MARGIN + 18}" text-anchor="middle">{kib} KiB</text>')
    for power in range(math.ceil(bounds[1][0]), math.floor(bounds[1][1]) + 1):
        y = place((10 ** bounds[0][0], 10 ** power))[1]
        label = f"{10 ** power} ns" if power < 3 else f"{10 ** (power - 3)} µs"
        parts.append(f'<line x1="{MARGIN}" y1="{y:.1f}" x2="{WIDTH - MARGIN - 100}" y2="{y:.1f}" stroke="#ddd"/>'
                     f'<text x="{MARGIN - 6}" y="{y + 4:.1f}" text-anchor="end">{label}</text>')
    for row, ((family, shape), line) in enumerate(series.items()):
        path = " ".join("{:.1f},{:.1f}".format(*place(point)) for point in line)
        style = f'fill="none" stroke="{COLOURS[family]}" stroke-width="2" stroke-dasharray="{DASHES[shape]}"'
        y = MARGIN + 20 * row
        parts.append(f'<polyline points="{path}" {style}/>'
                     f'<line x1="{WIDTH - 150}" y1="{y}" x2="{WIDTH - 115}" y2="{y}" {style}/>'
                     f'<text x="{WIDTH - 108}" y="{y + 4}">{family} {shape}</text>')
    return "\n".join(parts + ["</svg>", ""])


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    series = series_of(sys.stdin)
    print_table(series)
    pathlib.Path(sys.argv[1]).write_text(plot(series))


main()
