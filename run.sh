#!/usr/bin/env bash
# Builds the program and starts it under Wine. With a display it opens the window and waits until that is
# closed. Without one it opens the sample book on a virtual display, by keyboard, and saves a picture of the window.
set -eu
cd "$(dirname "$0")"
source tests/wine-env.sh
install_packages "${packages_to_build[@]}" "${packages_to_start[@]}"
echo "== building the program"
cmake --preset x64 >/dev/null
cmake --build --preset x64 --target lindrel help_file
wine_environment
make_template_prefix
exe=build/x64/lindrel/lindrel.exe

if [ -n "${DISPLAY:-}" ] && xdotool getdisplaygeometry >/dev/null 2>&1; then
  # The user's own prefix is kept between runs.
  export WINEPREFIX="$lindrel_wine/user"
  [ -d "$WINEPREFIX" ] || copy_prefix "$WINEPREFIX"
  echo "== starting Lindrel; this ends when its window is closed"
  exec wine "$exe"
fi

own_prefix
cp samples/minta.lnd "$WINEPREFIX/drive_c/minta.lnd"
start_display
echo "== starting Lindrel on a display of its own"
wine "$exe" >/dev/null 2>&1 &

# Polls until there is a window whose title matches a pattern.
wait_for_title() {
  local deadline=$((SECONDS + 60))
  until xdotool search --onlyvisible --name "$1" >/dev/null 2>&1; do
    [ $SECONDS -lt $deadline ] || { echo "no window \"$1\"" >&2; exit 1; }
    read -rt 0.1 <> <(:) || true
  done
}
wait_for_title '^Lindrel $'
xdotool key ctrl+o
wait_for_title '^File megnyitása$'
xdotool type 'C:\minta.lnd'
xdotool key Return
wait_for_title '^Lindrel -minta.lnd$'
xdotool key Down
picture="$PWD/build/lindrel.png"
import -window "$(xdotool search --onlyvisible --name '^Lindrel -minta.lnd$' | tail -n 1)" "$picture"
echo "== its window is in the picture $picture"
