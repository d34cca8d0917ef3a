#!/usr/bin/env bash
# Runs one Windows program under Wine with a prefix and a display of its own, so that several can run at once:
#   tests/wine-run.sh program.exe argument...
# The exit code is the program's; 124 when it does not end within LINDREL_WINE_TIMEOUT seconds.
set -u
source "$(dirname "$0")/wine-env.sh"
wine_environment
make_template_prefix
WINEPREFIX=$(mktemp -d "$lindrel_wine/run.XXXXXX")
export WINEPREFIX
clean_up() {
  wineserver -k 2>/dev/null
  wineserver -w 2>/dev/null
  stop_display
  rm -rf "$WINEPREFIX"
}
trap clean_up EXIT
trap 'exit 143' INT TERM
copy_prefix "$WINEPREFIX"
start_display || exit 1
timeout -k 10 "${LINDREL_WINE_TIMEOUT:-900}" wine "$@" </dev/null
exit $?
