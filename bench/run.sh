#!/usr/bin/env bash
# Builds the benchmarks, runs them in random order and prints a table: the least time of each, that of its floor, and the
# ratio. Arguments go to the benchmark program, such as --benchmark_filter=Load.
set -eu
cd "$(dirname "$0")/.."
cmake --preset native >/dev/null
cmake --build --preset native --target lindrel_bench >/dev/null
results=$(mktemp)
trap 'rm -f "$results"' EXIT
build/native/bench/lindrel_bench --benchmark_repetitions=9 --benchmark_enable_random_interleaving \
  --benchmark_min_time=0.1 --benchmark_out="$results" --benchmark_out_format=json "$@" >/dev/null 2>&1
python3 bench/ratios.py "$results"
