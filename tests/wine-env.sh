# Sourced by the scripts that run something under Wine: packages, prefixes and displays.
# Everything lives under build/wine of the checkout, or where LINDREL_WINE says. Prefixes and displays go with the script
# that made them, sessions some seconds after the last run.

lindrel_root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
lindrel_wine="${LINDREL_WINE:-$lindrel_root/build/wine}"

# Debian's packages by what they are for; the scripts name the lists that they need. Without its preloader, Wine 8
# fails to start one program in 4,000: one whose heap happens to cover the page at 7FFE0000.
packages_to_build=(cmake ninja-build g++-mingw-w64-x86-64-posix fp-utils python3)
packages_to_start=(wine wine64 wine64-preloader xvfb openbox xdotool imagemagick locales fonts-liberation procps)
packages_to_pack=(g++-mingw-w64-i686-posix nsis librsvg2-bin imagemagick)
packages_to_test=(g++ git libgtest-dev clang-format universal-ctags chromium)
packages_to_test_all=(libbenchmark-dev clang clang-tidy libclang-rt-14-dev)

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

# Whether the command `as_root` would ask nobody for anything.
can_be_root() { [ "$(id -u)" = 0 ] || sudo -n true 2>/dev/null; }

# Debian's tool, in a locale that every system has, asking nothing.
apt() { as_root env LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive apt-get -q "$@"; }

# Runs a command whose output matters only when it fails.
quietly() {
  local output
  output=$("$@" 2>&1) || { printf '%s\n' "$output" >&2; return 1; }
}

# Installs what is missing of the packages named, and says first what that is and how much has to be downloaded.
install_packages() {
  local missing=() package options=(install -y --no-install-recommends) bytes
  for package in "$@"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' || missing+=("$package")
  done
  [ ${#missing[@]} -gt 0 ] || return 0
  quietly apt update
  bytes=$(apt --print-uris "${options[@]}" "${missing[@]}" | awk "/^'/ { bytes += \$3 } END { print bytes + 0 }")
  echo "== installing ${#missing[@]} Debian packages and what they need, $((bytes / 1000000 + 1)) MB to download: ${missing[*]}"
  apt "${options[@]}" "${missing[@]}"
}

# The Hungarian locale makes 1250 the ANSI code page and Wine's own dialogs Hungarian.
wine_environment() {
  if ! locale -a 2>/dev/null | grep -qix 'hu_HU\.utf-\?8'; then
    echo "== making the locale hu_HU.UTF-8"
    # Exit code 1 means warnings about the source of the locale; the locale is made all the same.
    as_root localedef -i hu_HU -f UTF-8 hu_HU.UTF-8 || [ $? = 1 ]
  fi
  # A shell that began before the locale was made does not find it, and complains; all that it starts does.
  { export LANG=hu_HU.UTF-8 LC_ALL=hu_HU.UTF-8; } 2>/dev/null
  export WINEDEBUG=${WINEDEBUG:--all} WINEDLLOVERRIDES="mscoree=;mshtml=;winemenubuilder.exe="
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

# Sessions: a prefix with Wine's server and a display, which together take longer to start than most tests to run. One
# serves many runs, one at a time. It is left to the next run only by a run that ended well and left nothing behind, and
# goes when nobody has taken it for some seconds.

# Takes a session that is free, or makes one; sets WINEPREFIX and DISPLAY. Descriptor 9 locks it as long as the script
# lives, so nothing that the script starts may have it.
take_session() {
  local number=0
  mkdir -p "$lindrel_wine/sessions"
  until flock -n 9 2>/dev/null; do
    number=$((number + 1))
    exec 9>"$lindrel_wine/sessions/$number.lock"
  done
  session=$lindrel_wine/sessions/$number
  export WINEPREFIX=$session/prefix
  # A program and Wine's server wait for each other all the time. On one processor they take turns in less time than two
  # take to wake each other. Where this cannot be had it only takes longer. Long runs do without: users have several.
  [ -n "${LINDREL_LONG:-}" ] || taskset -cp $(((number - 1) % $(nproc))) $$ >/dev/null 2>&1 || true
  # A run that was killed has left no such file, and a machine that was switched off nobody who keeps the session.
  [ -e "$session/free" ] && is_kept || start_session 9>&-
  rm "$session/free"
  DISPLAY=$(<"$session/display")
  export DISPLAY
  # Where a new display has the pointer, wherever the last run left it.
  xdotool mousemove 640 512 9>&- || return 1
}

start_session() {
  end_session
  mkdir -p "$session"
  copy_prefix "$WINEPREFIX"
  start_display
  remove_modifier_keys
  echo "$DISPLAY" >"$session/display"
  echo "${wine_processes[*]}" >"$session/processes"
  # A program that waits forever. Wine's server and services end with the last program, and a run that began just then
  # would find them gone.
  mkfifo "$session/silence"
  wine 'C:\windows\system32\cmd.exe' <>"$session/silence" >/dev/null 2>&1 &
  # Returns when the services are there.
  wine 'C:\windows\system32\cmd.exe' /c exit </dev/null >/dev/null 2>&1
  what_is_there >"$session/there"
  touch "$session/free"
  # Locked as long as the keeper lives.
  exec 8>"$session/kept"
  flock 8
  setsid bash -c 'source "$1/tests/wine-env.sh"; session=$2; keep_session' - "$lindrel_root" "$session" \
    </dev/null >/dev/null 2>&1 &
  exec 8>&-
  echo $! >"$session/keeper"
}

# Removes Ctrl, Alt and Shift from the display's keyboard. When a window gets the focus, the display tells it which keys
# are down, on a busy machine late, and it does not know of those that a test holds down: Wine then releases them. Wine
# leaves alone keys that the display does not have.
remove_modifier_keys() {
  xkbcomp "$DISPLAY" - 2>/dev/null |
    sed -E '/^ *<([LR]CTL|LFSH|RTSH|[LR]ALT|ALT|META|LVL3|MDSW)> = /d' | xkbcomp -w 0 - "$DISPLAY"
}

is_kept() { ! flock -n "$session/kept" true; }

end_session() {
  [ -d "$session" ] || return 0
  WINEPREFIX=$session/prefix wineserver -k 2>/dev/null
  WINEPREFIX=$session/prefix wineserver -w 2>/dev/null
  local process
  for process in $(cat "$session/processes" 2>/dev/null); do
    # Since the machine was switched off, its number may be another's.
    grep -qszxF "WINEPREFIX=$session/prefix" "/proc/$process/environ" && kill "$process" 2>/dev/null
  done
  chmod -R u+w "$session"
  rm -rf "$session"
}

# Leaves the session to others, or ends it with what the run has left behind: 1 when there is something.
leave_session() {
  local left deadline=$((SECONDS + 10))
  until left=$(diff "$session/there" <(what_is_there)); do
    # What a program has started may need a moment to end.
    [ $SECONDS -lt $deadline ] || break
    read -rt 0.1 <> <(:) || true
  done
  if [ -z "$left" ]; then
    touch "$session/free"
    return 0
  fi
  printf 'This run leaves something behind:\n%s\n' "$left"
  end_session
  return 1
}

# Files outside of the system's own folders, and programs that are not Wine's. While a program starts, its loader's path
# stands before its own.
what_is_there() {
  (cd "$WINEPREFIX/drive_c" && find . -path ./windows -prune -o -print | sort)
  local process
  for process in $(grep -lszZxF "WINEPREFIX=$WINEPREFIX" /proc/[0-9]*/environ | tr '\0' '\n'); do
    { tr '\0' ' ' <"${process%environ}cmdline"; echo; } 2>/dev/null
  done | grep -i '\.exe' | grep -viE '^([^ ]*/[^ ]* )*C:\\windows' | sort
}

# Ends the session once it has been free for some seconds. Every session has such a process.
keep_session() {
  export WINEPREFIX=$session/prefix
  exec 9>"$session.lock"
  while [ "$(cat "$session/keeper" 2>/dev/null)" = $$ ]; do
    read -rt 2 <> <(:) || true
    flock -n 9 || continue
    # Taken and killed, or free for long.
    if [ ! -e "$session/free" ] || [ $(($(date +%s) - $(stat -c %Y "$session/free"))) -gt 10 ]; then
      end_session
    fi
    flock -u 9
  done
}

# The 32-bit libraries that an installer needs, out of Wine's own package of that width. The package is not installed:
# it would need i386 beside amd64 in the whole system.
lindrel_libraries_32=(
  advapi32 bcrypt cfgmgr32 combase comctl32 gdi32 imm32 iphlpapi kernel32 kernelbase msvcrt ntdll ole32 oleaut32 propsys
  rpcrt4 sechost setupapi shcore shell32 shlwapi ucrtbase user32 usp10 uxtheme version win32u windowscodecs ws2_32)

download_libraries_32() {
  local target="$lindrel_wine/32/i386-windows" apt="$lindrel_wine/apt"
  [ ! -d "$target" ] || return 0
  echo "== downloading Wine's 32-bit libraries (95 MB)"
  rm -rf "$apt"
  mkdir -p "$apt/lists/partial" "$apt/archives/partial" "$apt/libraries"
  local options=(-qq -o Dir::State::lists="$apt/lists" -o Dir::Cache="$apt" -o APT::Architectures=amd64,i386
    -o APT::Sandbox::User=root)
  # A list that cannot be had matters only when the package is in none of the others; the download says so.
  apt-get "${options[@]}" update >/dev/null 2>&1 || true
  (cd "$apt" && quietly apt-get "${options[@]}" download "libwine:i386=$(dpkg-query -W -f='${Version}' libwine)")
  local members=("${lindrel_libraries_32[@]/%/.dll}" cmd.exe)
  dpkg-deb --fsys-tarfile "$apt"/libwine_*.deb |
    tar -x -C "$apt/libraries" --transform='s|.*/||' "${members[@]/#/./usr/lib/i386-linux-gnu/wine/i386-windows/}"
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

# Whether a 32-bit program can be started, found out by starting one that every prefix with these libraries has. Kernels
# with 32-bit emulation switched off end it with a fault. LINDREL_32_BIT=no stands in for such a kernel.
program_32='C:\windows\syswow64\cmd.exe'
ends_with_32() { # command that runs a program of Windows
  [ "${LINDREL_32_BIT:-}" != no ] || return 1
  local code=0
  "$@" "$program_32" /c exit 32 </dev/null >/dev/null 2>&1 || code=$?
  [ $code = 32 ]
}

# The same with the libraries above, in a prefix that goes again.
runs_32_bit() (
  own_prefix
  use_libraries_32
  ends_with_32 timeout -k 5 60 wine
)

# Starts a display with a window manager, of 1280x1024 or another size, and sets DISPLAY. The processes' numbers are in wine_processes.
wine_processes=()
start_display() {
  local number_file
  number_file=$(mktemp)
  # By default a display starts over, with all its keys, when its last program leaves.
  Xvfb -displayfd 7 -noreset -screen 0 "${1:-1280x1024}x24" -nolisten tcp 7>"$number_file" >/dev/null 2>&1 &
  wine_processes+=($!)
  local deadline=$((SECONDS + 30))
  until [ -s "$number_file" ]; do
    [ $SECONDS -lt $deadline ] || { echo "no display" >&2; return 1; }
    read -rt 0.05 <> <(:) || true
  done
  DISPLAY=":$(cat "$number_file")"
  export DISPLAY
  rm -f "$number_file"
  # Its log goes where everything else is.
  XDG_CACHE_HOME=$lindrel_wine/cache openbox --sm-disable >/dev/null 2>&1 &
  wine_processes+=($!)
}

stop_display() {
  [ ${#wine_processes[@]} -eq 0 ] || kill "${wine_processes[@]}" 2>/dev/null || true
  wait "${wine_processes[@]}" 2>/dev/null || true
  wine_processes=()
}
