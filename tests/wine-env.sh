# Sourced by the scripts that run something under Wine: packages, prefixes and displays.
# Everything lives under build/wine of the checkout and is gone when the script that asked for it ends.

lindrel_root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
lindrel_wine="$lindrel_root/build/wine"

# Packages of the whole project, one list for all scripts.
lindrel_packages=(
  cmake ninja-build g++ git
  g++-mingw-w64-x86-64-posix g++-mingw-w64-i686-posix wine wine64
  libgtest-dev libbenchmark-dev clang clang-format clang-tidy libclang-rt-14-dev universal-ctags
  xvfb openbox xdotool imagemagick locales fonts-liberation python3
  fp-utils librsvg2-bin icoutils chromium)

install_packages() {
  local missing=() package
  for package in "${lindrel_packages[@]}"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' || missing+=("$package")
  done
  if [ ${#missing[@]} -gt 0 ]; then
    local as_root=()
    [ "$(id -u)" = 0 ] || as_root=(sudo)
    "${as_root[@]}" apt-get update -qq
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
  fi
  if ! locale -a 2>/dev/null | grep -qix 'hu_HU\.utf-\?8'; then
    local as_root=()
    [ "$(id -u)" = 0 ] || as_root=(sudo)
    # Exit code 1 means warnings about the source of the locale; the locale is made all the same.
    "${as_root[@]}" localedef -i hu_HU -f UTF-8 hu_HU.UTF-8 || [ $? = 1 ]
  fi
}

# The Hungarian locale makes 1250 the ANSI code page and Wine's own dialogs Hungarian.
wine_environment() {
  export LANG=hu_HU.UTF-8 LC_ALL=hu_HU.UTF-8 WINEDEBUG=${WINEDEBUG:--all} WINEDLLOVERRIDES="mscoree=;mshtml="
  unset WAYLAND_DISPLAY
}

# A prefix that is made once and only copied from.
make_template_prefix() {
  mkdir -p "$lindrel_wine"
  exec 8>"$lindrel_wine/template.lock"
  flock 8
  if [ ! -e "$lindrel_wine/template/ready" ]; then
    rm -rf "$lindrel_wine/template"
    WINEPREFIX="$lindrel_wine/template" DISPLAY='' wineboot -i >/dev/null 2>&1
    WINEPREFIX="$lindrel_wine/template" wineserver -w
    touch "$lindrel_wine/template/ready"
  fi
  flock -u 8
  exec 8>&-
}

# Makes a prefix in $1. The system's files, which nothing writes to, are shared with the template by hard links.
copy_prefix() {
  mkdir -p "$1/drive_c"
  cp -a "$lindrel_wine"/template/*.reg "$lindrel_wine/template/dosdevices" "$lindrel_wine/template/.update-timestamp" "$1/"
  local folder
  for folder in "$lindrel_wine"/template/drive_c/*; do
    case "$folder" in
      */users | */ProgramData) cp -a "$folder" "$1/drive_c/" ;;
      *) cp -al "$folder" "$1/drive_c/" ;;
    esac
  done
}

# Starts a display with a window manager, of 1280x1024 or another size, and sets DISPLAY. The processes' numbers are in wine_processes.
wine_processes=()
start_display() {
  local number_file
  number_file=$(mktemp)
  Xvfb -displayfd 7 -screen 0 "${1:-1280x1024}x24" -nolisten tcp 7>"$number_file" >/dev/null 2>&1 &
  wine_processes+=($!)
  local deadline=$((SECONDS + 30))
  until [ -s "$number_file" ]; do
    [ $SECONDS -lt $deadline ] || { echo "no display" >&2; return 1; }
    read -rt 0.05 <> <(:) || true
  done
  DISPLAY=":$(cat "$number_file")"
  export DISPLAY
  rm -f "$number_file"
  openbox --sm-disable >/dev/null 2>&1 &
  wine_processes+=($!)
}

stop_display() {
  [ ${#wine_processes[@]} -eq 0 ] || kill "${wine_processes[@]}" 2>/dev/null || true
  wait "${wine_processes[@]}" 2>/dev/null || true
  wine_processes=()
}
