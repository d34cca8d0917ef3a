# Sourced by the scripts that take pictures of the program: starts a Wine session for it and acts as its user.
#   start_session [WIDTHxHEIGHT]   a prefix and a display; settings can be made before the program starts
#   show_sample_book FOLDER        starts the program, which opens the sample book; pictures go to FOLDER
#   end_session                    is called at the end of the script in any case
# The program must have been built (build/x64).
source "$(dirname "${BASH_SOURCE[0]}")/wine-env.sh"

start_session() {
  install_packages "${packages_to_build[@]}" "${packages_to_start[@]}"
  wine_environment
  make_template_prefix
  WINEPREFIX=$(mktemp -d "$lindrel_wine/run.XXXXXX")
  export WINEPREFIX
  trap end_session EXIT
  copy_prefix "$WINEPREFIX"
  start_display "$@"
  add_fonts
  # Title bars as Windows draws them, not the window manager's, and smooth letters.
  set_value 'Software\Wine\X11 Driver' Decorated REG_SZ N
  set_value 'Control Panel\Desktop' FontSmoothing REG_SZ 2
  set_value 'Control Panel\Desktop' FontSmoothingType REG_DWORD 1
  set_value 'Control Panel\Colors' TitleText REG_SZ '255 255 255'
  set_fonts 12
}

end_session() {
  trap - EXIT
  wineserver -k 2>/dev/null || true
  wineserver -w 2>/dev/null || true
  stop_display
  rm -rf "$WINEPREFIX"
}

# Sets the fonts of the windows to a height in pixels, at 96 dots per inch.
set_fonts() {
  local face name
  face=$(printf 'Liberation Sans' | iconv -t UTF-16LE | od -An -v -tx1 | tr -d ' \n')
  for name in MessageFont MenuFont StatusFont CaptionFont SmCaptionFont; do
    # A LOGFONTW: height, 12 bytes of widths and angles, weight, 8 bytes of flags, the face name in 64 bytes.
    set_value 'Control Panel\Desktop\WindowMetrics' $name REG_BINARY \
      "$(printf '%02xffffff%024d90010000%016d%s%068d' $((256 - $1)) 0 0 "$face" 0)"
  done
}

# Wine's substitutes for the fonts of Windows. Only these prefixes get them: elsewhere they would change the measures of the
# windows.
add_fonts() {
  local fonts="$lindrel_wine/fonts"
  if [ ! -e "$fonts/ready" ]; then
    mkdir -p "$fonts"
    (cd "$fonts" && apt-get download -qq -o APT::Sandbox::User=root fonts-wine && dpkg -x fonts-wine_*.deb .)
    touch "$fonts/ready"
  fi
  cp "$fonts"/usr/share/wine/fonts/{marlett,tahoma,tahomabd}.ttf "$WINEPREFIX/drive_c/windows/Fonts/"
}

set_value() { wine reg add "HKCU\\$1" /v "$2" /t "$3" /d "$4" /f >/dev/null; }

main='^Lindrel -minta\.lnd$'
show_sample_book() {
  pictures=$1
  mkdir -p "$pictures"
  cp samples/minta.lnd "$WINEPREFIX/drive_c/minta.lnd"
  wine build/x64/lindrel/lindrel.exe >/dev/null 2>&1 &
  wait_for '^Lindrel $'
  keys ctrl+o
  wait_for '^File megnyitása$'
  text 'C:\minta.lnd'
  keys Return
  wait_for "$main"
}

# Repeats a command until it succeeds, for half a minute at most.
until_true() {
  local deadline=$((SECONDS + 30))
  until "$@" >/dev/null 2>&1; do
    [ $SECONDS -lt $deadline ] || { echo "waited in vain: $*" >&2; exit 1; }
    read -rt 0.1 <> <(:) || true
  done
}
active_title_is() { [[ $(xdotool getactivewindow getwindowname) =~ $1 ]]; }
wait_for() { until_true active_title_is "$1"; } # pattern of the title

keys() { xdotool key --clearmodifiers --delay 60 "$@"; }
text() { xdotool type --delay 60 "$1"; }
open_menu() {
  local step
  keys alt+f
  for ((step = 1; step < $1; ++step)); do keys Right; done
}
# menu <position in the bar> <position in the menu, separators not counted>
menu() {
  local step
  open_menu "$1"
  for ((step = 1; step < $2; ++step)); do keys Down; done
  keys Return
}

# A picture of the active window.
take() { take_window "$(xdotool getactivewindow)" "$1"; }
# A picture of the whole screen, for menus.
take_screen() { take_window root "$1"; }

# take_window <window> <name>: takes pictures until two in a row are alike.
take_window() {
  local before='' now='' tries
  for tries in {1..40}; do
    import -window "$1" -define png:exclude-chunks=date,time "$pictures/$2.png"
    now=$(md5sum <"$pictures/$2.png")
    [ "$now" != "$before" ] || break
    before=$now
    read -rt 0.2 <> <(:) || true
  done
  echo "$pictures/$2.png"
}
