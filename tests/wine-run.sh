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

# Wine 8 now and then forgets a thread of a program that has ended, and the process then never goes. Its exit code is
# known all the same: it stands in the last field of its state.
end_forgotten() { # process of timeout, file for the exit code
  local program state fields
  while kill -0 "$1" 2>/dev/null; do
    read -rt 2 <> <(:) || true
    program=$(pgrep -P "$1") || continue
    read -r state fields < <(sed 's/.*) //' "/proc/$program/stat" 2>/dev/null) || continue
    if [ "$state" = Z ] && [ "${seen:-}" = Z ]; then
      echo $((${fields##* } >> 8)) >"$2"
      kill -9 "$program"
    fi
    seen=$state
  done
}
timeout -k 10 "${LINDREL_WINE_TIMEOUT:-900}" wine "$@" </dev/null &
program=$!
end_forgotten $program "$WINEPREFIX/exit-code" &
wait $program
result=$?
[ ! -s "$WINEPREFIX/exit-code" ] || result=$(<"$WINEPREFIX/exit-code")
exit "$result"
