#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Prints the figures of the benchmarks as a Markdown table, and writes their curves for plot.gnuplot.

usage: table.py FIGURES.json CURVES
"""
import json
import math
import re
import statistics
import sys

SLOPE_AT_MOST = 1.05  # of cost against size, both logarithmic: 1 is linear
UNITS = {"ratio": "×", "bytes": "bytes", "KiB": "KiB"}


def row(work, against, value, unit, limit, *times):
    digits = 2 if value < 100 else 0
    reached = "" if limit is None else "yes" if value <= limit else "**no**"
    most = "" if limit is None else f"{limit:.2f}"
    milliseconds = " | ".join(f"{time:.{3 if time < 10 else 1}f}" for time in times) or " | "
    print(f"| {work} | {against} | {value:.{digits}f} {unit} | {most} | {reached} | {milliseconds} |")


def main(figures, curves_file):
    curves = {}
    print("| work | against | measured | at most | reached | ms | ms, other |")
    print("|---|---|---:|---:|---|---:|---:|")
    with open(figures, encoding="utf-8") as file:
        runs = json.load(file)["benchmarks"]
    for run in runs:
        if run.get("aggregate_name", "median") != "median":
            continue
        work = run["run_name"].partition("/iterations")[0]
        unit = next(name for name in UNITS if name in run)
        times = (run["real_time"], run["other"]) if unit == "ratio" else ()
        row(work, run["label"], run[unit], UNITS[unit], run.get("limit"), *times)
        sized = re.fullmatch(r"(.*), (\d{4,}) entries", work)
        if sized:
            curves.setdefault(sized[1], {}).setdefault(int(sized[2]), run["real_time"])

    with open(curves_file, "w", encoding="utf-8") as file:
        for work, points in curves.items():
            if len(points) < 3:
                continue
            logarithms = [[math.log(value) for value in values] for values in (points, points.values())]
            slope = statistics.linear_regression(*logarithms).slope
            row(f"{work}, cost against size", "log-log slope", slope, "", SLOPE_AT_MOST)
            file.write(f'"{work}"\n' + "".join(f"{size} {time}\n" for size, time in points.items()) + "\n\n")


if __name__ == "__main__":
    main(*sys.argv[1:])
