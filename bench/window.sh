#!/usr/bin/env bash
# How long a user waits in the largest book until the window is painted: opening it, changing its tab, searching it;
# what the bare list control and the reading of the file take of that; and the memory:
#   bench/window.sh [rounds]
# In a prefix and on a display of its own, where nothing else runs. "frames" is the median in frames of 16 ms.
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
