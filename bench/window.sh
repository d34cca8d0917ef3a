#!/usr/bin/env bash
# Measures how long a user waits until the window is painted with the largest book: opening it, changing tabs, searching;
# as floors, the bare list control and the reading of the file; and the memory:
#   bench/window.sh [rounds]
# Uses a prefix and a display of its own. "frames" is the median in frames of 16 ms.
set -eu
cd "$(dirname "$0")/.."
rounds=${1:-25}
source tests/wine-env.sh
cmake --preset x64 >/dev/null
cmake --build --preset x64 --target window_bench >/dev/null
wine_environment
make_template_prefix
own_prefix
start_display
wine build/x64/bench/window/window_bench.exe "$rounds" </dev/null
