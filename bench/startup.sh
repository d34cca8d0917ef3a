#!/usr/bin/env bash
# How long Lindrel takes from its start to a usable window, and its memory then, beside Wine's notepad, in turns:
#   bench/startup.sh [rounds]
# In a prefix and on a display of its own, where nothing else runs. "ratio" is how many times as long Lindrel takes.
set -eu
cd "$(dirname "$0")/.."
rounds=${1:-15}
source tests/wine-env.sh
cmake --preset x64 >/dev/null
cmake --build --preset x64 --target lindrel startup_bench >/dev/null
wine_environment
make_template_prefix
own_prefix
# On the drive where users and notepad have it: on that of the checkout Wine looks for each library longer.
cp -r build/x64/lindrel "$WINEPREFIX/drive_c/lindrel"
start_display
wine build/x64/bench/startup/startup_bench.exe "$rounds" 'C:\lindrel\lindrel.exe' \
  'C:\windows\system32\notepad.exe' </dev/null
