#!/usr/bin/env bash
# Takes pictures of every window, dialog and menu as users with other settings see them, to be looked at:
#   tests/take-pictures.sh [LOOK...]
# A look is a resolution (96, 144, 192), "letters" (large ones), "letters192" or "contrast" (white on black). Without
# arguments all of them are taken. The program must have been built (build/x64). The pictures are written to build/pictures/LOOK.
set -eu
cd "$(dirname "$0")/.."
source tests/picture-session.sh
source help/picture-tour.sh

set_resolution() { set_value 'Control Panel\Desktop' LogPixels REG_DWORD "$1"; }

set_contrast() {
  local colour black='0 0 0' white='255 255 255'
  for colour in Window Menu MenuBar ButtonFace Scrollbar AppWorkSpace InfoWindow ActiveTitle InactiveTitle Background \
    ButtonAlternateFace GradientActiveTitle GradientInactiveTitle; do
    set_value 'Control Panel\Colors' $colour REG_SZ "$black"
  done
  for colour in WindowText MenuText ButtonText InfoText TitleText InactiveTitleText WindowFrame ButtonHilight \
    ButtonLight ButtonShadow ButtonDkShadow ActiveBorder InactiveBorder HilightText; do
    set_value 'Control Panel\Colors' $colour REG_SZ "$white"
  done
  set_value 'Control Panel\Colors' GrayText REG_SZ '63 242 63'
  set_value 'Control Panel\Colors' Hilight REG_SZ '128 0 128'
  set_value 'Control Panel\Colors' MenuHilight REG_SZ '128 0 128'
  set_value 'Control Panel\Colors' HotTrackingColor REG_SZ '255 255 0'
  # A visual style would keep its own colours.
  set_value 'Software\Microsoft\Windows\CurrentVersion\ThemeManager' ThemeActive REG_SZ 0
}

take_menus() {
  local position
  for position in {1..5}; do
    open_menu "$position"
    take_screen "menu-$position"
    keys Escape Escape
  done
}

fills_the_screen() {
  local WIDTH
  eval "$(xdotool getwindowgeometry --shell "$1")"
  [ "$WIDTH" -ge 1900 ]
}

# take_sizes <name> <least width> <least height>: sizes are in thousandths of the size at which the window opens
take_sizes() {
  local window WIDTH HEIGHT
  window=$(xdotool getactivewindow)
  eval "$(xdotool getwindowgeometry --shell "$window")"
  xdotool windowsize "$window" $((WIDTH * $2 / 1000 + 1)) $((HEIGHT * $3 / 1000 + 1))
  take_window "$window" "$1-legkisebb"
  # As large as if it were maximised: clicks on the title bar go to the window manager.
  xdotool windowmove "$window" 0 0 windowsize "$window" 1920 1080
  until_true fills_the_screen "$window"
  take_window "$window" "$1-teljes"
}

take_look() {
  local least_height=694
  start_session 1920x1080
  case $1 in
    letters) set_fonts 18 && least_height=787 ;;
    letters192) set_fonts 18 && set_resolution 192 && least_height=787 ;;
    contrast) set_contrast ;;
    *) set_resolution "$1" ;;
  esac
  show_sample_book "build/pictures/$1"
  take_tour
  take_menus
  take_sizes foablak 676 $least_height
  keys ctrl+f
  wait_for '^Keresés$'
  text 'ma'
  keys Return
  take_sizes kereses 800 667
  keys Escape
  wait_for "$main"
  end_session
}

[ $# -gt 0 ] || set -- 96 144 192 letters letters192 contrast
for look in "$@"; do take_look "$look"; done
