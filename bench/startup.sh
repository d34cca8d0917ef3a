#!/usr/bin/env bash
# Measures the time from the start of Lindrel to a usable window, and its memory, in turns with Wine's notepad:
#   bench/startup.sh [rounds]
# Uses a prefix and a display of its own. "ratio" is Lindrel's time divided by notepad's.
set -eu
cd "$(dirname "$0")/.."
rounds=${1:-15}
source tests/wine-env.sh
cmake --preset x64 >/dev/null
cmake --build --preset x64 --target lindrel startup_bench >/dev/null
wine_environment
make_template_prefix
own_prefix
# On drive C, where notepad is too: on the drive of the checkout Wine takes longer to find each library.
cp -r build/x64/lindrel "$WINEPREFIX/drive_c/lindrel"
start_display
wine build/x64/bench/startup/startup_bench.exe "$rounds" 'C:\lindrel\lindrel.exe' \
  'C:\windows\system32\notepad.exe' </dev/null
