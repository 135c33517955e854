#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Builds the benchmarks in the preset "benchmark", runs them, prints the table and leaves it with the figures as JSON
# and the plot in build/benchmark/benchmarks. Arguments go to the benchmarks: --quick, or the name of a subject.
set -euo pipefail
cd "$(dirname "$0")/.."
source tools/setup.sh

prepare "${build_packages[@]}" libbenchmark-dev xvfb
build benchmark
cd build/benchmark/benchmarks
./voltbok_benchmarks --json performance.json --plot performance.png "$@" | tee performance.md
