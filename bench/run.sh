#!/usr/bin/env bash
# Builds the benchmarks, runs them and prints a table: time, the floor that the label names, and how many times the
# floor each takes. Arguments go to the benchmark program, such as --benchmark_filter=Load.
set -eu
cd "$(dirname "$0")/.."
cmake --preset native >/dev/null
cmake --build --preset native --target lindrel_bench >/dev/null
results=$(mktemp)
trap 'rm -f "$results"' EXIT
build/native/bench/lindrel_bench --benchmark_out="$results" --benchmark_out_format=json "$@" >/dev/null 2>&1
python3 bench/ratios.py "$results"
