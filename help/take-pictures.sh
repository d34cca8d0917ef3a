#!/usr/bin/env bash
# Takes the pictures of the windows for the help pages from the program itself, opened on the sample book:
#   help/take-pictures.sh
# The program must have been built (build/x64). The pictures are written to help/pages/pictures.
set -eu
cd "$(dirname "$0")/.."
source tests/wine-env.sh
install_packages
wine_environment
make_template_prefix
pictures="$PWD/help/pages/pictures"
mkdir -p "$pictures"

WINEPREFIX=$(mktemp -d "$lindrel_wine/run.XXXXXX")
export WINEPREFIX
clean_up() {
  wineserver -k 2>/dev/null || true
  wineserver -w 2>/dev/null || true
  stop_display
  rm -rf "$WINEPREFIX"
}
trap clean_up EXIT
copy_prefix "$WINEPREFIX"
start_display
# Title bars as Windows draws them, not the window manager's, and smooth letters. The fonts are Wine's own stand-ins for
# those of Windows; only this prefix gets them, since windows are measured by their fonts.
(cd "$WINEPREFIX" && apt-get download -qq -o APT::Sandbox::User=root fonts-wine && dpkg -x fonts-wine_*.deb fonts)
cp "$WINEPREFIX"/fonts/usr/share/wine/fonts/{marlett,tahoma,tahomabd}.ttf "$WINEPREFIX/drive_c/windows/Fonts/"
set_value() { wine reg add "HKCU\\$1" /v "$2" /t "$3" /d "$4" /f >/dev/null; }
set_value 'Software\Wine\X11 Driver' Decorated REG_SZ N
set_value 'Control Panel\Desktop' FontSmoothing REG_SZ 2
set_value 'Control Panel\Desktop' FontSmoothingType REG_DWORD 1
set_value 'Control Panel\Colors' TitleText REG_SZ '255 255 255'
cp samples/minta.lnd "$WINEPREFIX/drive_c/minta.lnd"
wine build/x64/lindrel/lindrel.exe >/dev/null 2>&1 &

# Asks again and again, for half a minute at most.
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
# menu <position in the bar> <position in the menu, separators not counted>
menu() {
  keys alt+f
  local step
  for ((step = 1; step < $1; ++step)); do keys Right; done
  for ((step = 1; step < $2; ++step)); do keys Down; done
  keys Return
}

# A picture of the active window, once two in a row are alike.
take() {
  local window before='' now='' tries
  window=$(xdotool getactivewindow)
  for tries in {1..40}; do
    import -window "$window" -define png:exclude-chunks=date,time "$pictures/$1.png"
    now=$(md5sum <"$pictures/$1.png")
    [ "$now" != "$before" ] || break
    before=$now
    read -rt 0.2 <> <(:) || true
  done
  echo "$1"
}

main='^Lindrel -minta\.lnd$'
wait_for '^Lindrel $'
keys ctrl+o
wait_for '^File megnyitása$'
text 'C:\minta.lnd'
keys Return
wait_for "$main"
# Three boxes checked, the fourth entry selected.
keys Down space space space
take foablak

keys ctrl+k
wait_for '^Kategóriák nevei$'
take kategoriak
keys Escape
wait_for "$main"

keys ctrl+a
wait_for '^Új oldal hozzáadása$'
text 'Debian GNU/Linux'
keys alt+u End
text 'www.debian.org/'
take hozzaadas
keys Escape
wait_for "$main"

keys ctrl+e
wait_for '^Cím módosítása$'
take modositas
keys Escape
wait_for "$main"

keys ctrl+m
wait_for '^A kiválasztott címek áthelyezése$'
take athelyezes
keys Escape
wait_for "$main"

keys Delete
wait_for '^Törlés engedélyezése$'
take torles
keys Tab Return
wait_for "$main"

menu 2 7
wait_for '^Lindrel$'
take parancsikon
keys Escape
wait_for "$main"

keys ctrl+f
wait_for '^Keresés$'
text 'ma'
keys Return
take kereses
keys Escape
wait_for "$main"

menu 4 2
wait_for '^Exportálás$'
keys space
take export-weblap
keys alt+f End
take export-kedvencek
keys alt+e
wait_for '^Exportálás a kedvencekbe$'
take mappa
keys Escape
wait_for '^Exportálás$'
keys Escape
wait_for "$main"

menu 5 3
wait_for '^Lindrel névjegye$'
take nevjegy
keys Escape
wait_for "$main"

menu 4 1
wait_for '^Importálás$'
take importalas
keys Down alt+i
wait_for '^Importálás a kedvencekből$'
take import-mappa
keys Escape
wait_for '^Importálás$'
keys Escape
wait_for "$main"
