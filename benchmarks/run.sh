#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Builds the benchmarks in the preset "benchmark", runs them and prints the table. The figures as JSON, the table and,
# where gnuplot is installed, a plot lie in build/benchmark/benchmarks. Arguments go to the benchmarks: --quick, or the
# name of a subject.
set -euo pipefail
cd "$(dirname "$0")/.."
source tools/setup.sh

prepare "${build_packages[@]}" libbenchmark-dev python3 xvfb
build benchmark
here=$PWD/benchmarks
cd build/benchmark/benchmarks
./voltbok_benchmarks "$@"
python3 "$here/table.py" performance.json curves | tee performance.md
if [[ -s curves ]] && command -v gnuplot >/dev/null; then
    gnuplot "$here/plot.gnuplot"
fi
