# Sourced by the scripts that run something under Wine: packages, prefixes and displays.
# Everything lives under build/wine of the checkout, or where LINDREL_WINE says, and is gone when the script that asked for it ends.

lindrel_root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
lindrel_wine="${LINDREL_WINE:-$lindrel_root/build/wine}"

# Packages of the whole project, one list for all scripts.
lindrel_packages=(
  cmake ninja-build g++ git
  g++-mingw-w64-x86-64-posix g++-mingw-w64-i686-posix wine wine64
  libgtest-dev libbenchmark-dev clang clang-format clang-tidy libclang-rt-14-dev universal-ctags
  xvfb openbox xdotool imagemagick locales fonts-liberation python3 procps
  fp-utils librsvg2-bin icoutils chromium nsis)

# Runs a command as root, or says which one root has to run.
as_root() {
  if [ "$(id -u)" = 0 ]; then
    "$@"
  elif command -v sudo >/dev/null; then
    sudo "$@"
  else
    printf 'This needs root, and there is no sudo. As root, run: %s\n' "$*" >&2
    return 1
  fi
}

# Installs what is missing, and says first what that is.
install_packages() {
  local missing=() package
  for package in "${lindrel_packages[@]}"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' || missing+=("$package")
  done
  if [ ${#missing[@]} -gt 0 ]; then
    echo "== installing ${#missing[@]} Debian packages and what they need: ${missing[*]}"
    as_root apt-get update -q
    as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends "${missing[@]}"
  fi
  if ! locale -a 2>/dev/null | grep -qix 'hu_HU\.utf-\?8'; then
    echo "== making the locale hu_HU.UTF-8"
    # Exit code 1 means warnings about the source of the locale; the locale is made all the same.
    as_root localedef -i hu_HU -f UTF-8 hu_HU.UTF-8 || [ $? = 1 ]
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
    echo "== setting up Wine"
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

# Makes a prefix of the script's own, which is gone with the processes in it when the script ends.
own_prefix() {
  WINEPREFIX=$(mktemp -d "$lindrel_wine/run.XXXXXX")
  export WINEPREFIX
  trap end_own_prefix EXIT
  trap 'exit 143' INT TERM
  copy_prefix "$WINEPREFIX"
}
end_own_prefix() {
  wineserver -k 2>/dev/null || true
  wineserver -w 2>/dev/null || true
  stop_display
  # What a test has made read-only too.
  chmod -R u+w "$WINEPREFIX/drive_c/users"
  rm -rf "$WINEPREFIX"
}

# The 32-bit libraries that an installer needs, out of Wine's own package of that width. The package is not installed:
# it would need i386 beside amd64 in the whole system.
lindrel_libraries_32=(
  advapi32 bcrypt cfgmgr32 combase comctl32 gdi32 imm32 iphlpapi kernel32 kernelbase msvcrt ntdll ole32 oleaut32 propsys
  rpcrt4 sechost setupapi shcore shell32 shlwapi ucrtbase user32 usp10 uxtheme version win32u windowscodecs ws2_32)

download_libraries_32() {
  local target="$lindrel_wine/32/i386-windows" apt="$lindrel_wine/apt"
  [ ! -d "$target" ] || return 0
  echo "== downloading Wine's 32-bit libraries (95 MB), for the test of the installer"
  rm -rf "$apt"
  mkdir -p "$apt/lists/partial" "$apt/archives/partial" "$apt/libraries"
  local options=(-qq -o Dir::State::lists="$apt/lists" -o Dir::Cache="$apt" -o APT::Architectures::=amd64
    -o APT::Architectures::=i386 -o APT::Sandbox::User=root)
  # A list that cannot be had matters only when the package is in none of the others; the download says so.
  apt-get "${options[@]}" update 2>/dev/null || true
  (cd "$apt" && apt-get "${options[@]}" download "libwine:i386=$(dpkg-query -W -f='${Version}' libwine)")
  local members=("${lindrel_libraries_32[@]/#/./usr/lib/i386-linux-gnu/wine/i386-windows/}")
  dpkg-deb --fsys-tarfile "$apt"/libwine_*.deb |
    tar -x -C "$apt/libraries" --transform='s|.*/||' "${members[@]/%/.dll}"
  # Comes with the 64-bit package already.
  cp "$(dirname "$(dpkg-query -L libwine | grep -m1 '/x86_64-windows/ntdll.dll$')")/../i386-windows/zlib1.dll" \
    "$apt/libraries/"
  mkdir -p "$(dirname "$target")"
  mv "$apt/libraries" "$target"
  rm -rf "$apt"
}

# Lets the prefix run 32-bit programs, also those that ask for version 6 of the common controls and make shortcuts.
use_libraries_32() {
  export WINEDLLPATH="$lindrel_wine/32"
  local windows="$WINEPREFIX/drive_c/windows" manifest name
  cp "$lindrel_wine"/32/i386-windows/* "$windows/syswow64/"
  for manifest in "$windows"/winsxs/manifests/amd64_microsoft.windows.common-controls_*.manifest; do
    name=$(basename "${manifest/amd64_/x86_}")
    sed 's/"amd64"/"x86"/' "$manifest" >"$windows/winsxs/manifests/$name"
    mkdir -p "$windows/winsxs/${name%.manifest}"
    cp "$lindrel_wine/32/i386-windows/comctl32.dll" "$windows/winsxs/${name%.manifest}/"
  done
  local shortcuts='HKLM\Software\Classes\Wow6432Node\CLSID\{00021401-0000-0000-C000-000000000046}\InProcServer32'
  wine reg add "$shortcuts" /ve /d 'C:\windows\system32\shell32.dll' >/dev/null
  wine reg add "$shortcuts" /v ThreadingModel /d Apartment >/dev/null
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
