# Sourced by the scripts that run something under Wine: packages, prefixes and displays.
# Everything is kept in build/wine of the checkout, or in the folder that LINDREL_WINE names. Prefixes and displays are
# removed when the script that made them ends, sessions some seconds after the last run.

lindrel_root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
lindrel_wine="${LINDREL_WINE:-$lindrel_root/build/wine}"

# Debian's packages by purpose; each script installs the lists that it needs. Without its preloader, Wine 8
# fails to start one program in 4,000: one whose heap happens to cover the page at 7FFE0000.
packages_to_build=(cmake ninja-build g++-mingw-w64-x86-64-posix fp-utils python3)
packages_to_start=(wine wine64 wine64-preloader xvfb openbox xdotool imagemagick locales fonts-liberation procps)
packages_to_pack=(g++-mingw-w64-i686-posix nsis librsvg2-bin imagemagick)
packages_to_test=(g++ git libgtest-dev clang-format universal-ctags chromium)
packages_to_test_all=(libbenchmark-dev clang clang-tidy libclang-rt-14-dev)

# Runs a command as root, or prints the command that root has to run.
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

# Whether as_root would work without asking for a password.
can_be_root() { [ "$(id -u)" = 0 ] || sudo -n true 2>/dev/null; }

# apt-get in a locale that every system has, without questions.
apt() { as_root env LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive apt-get -q "$@"; }

# Runs a command and shows its output only if it fails.
quietly() {
  local output
  output=$("$@" 2>&1) || { printf '%s\n' "$output" >&2; return 1; }
}

# Installs those of the packages that are missing, after printing their names and the size of the download.
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
    # Exit code 1 stands for warnings about the source of the locale, which is made nevertheless.
    as_root localedef -i hu_HU -f UTF-8 hu_HU.UTF-8 || [ $? = 1 ]
  fi
  # A shell that was started before the locale was made complains that there is none; its children find it.
  { export LANG=hu_HU.UTF-8 LC_ALL=hu_HU.UTF-8; } 2>/dev/null
  export WINEDEBUG=${WINEDEBUG:--all} WINEDLLOVERRIDES="mscoree=;mshtml=;winemenubuilder.exe="
  unset WAYLAND_DISPLAY
}

# Makes the prefix from which all others are copied, if there is none yet.
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

# Makes a prefix in $1. The system's files, to which nothing writes, are hard links to those of the template.
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

# Makes a prefix that is removed when the script ends, after all processes in it were ended.
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
  # Tests make files read-only.
  chmod -R u+w "$WINEPREFIX/drive_c/users"
  rm -rf "$WINEPREFIX"
}

# Sessions: a prefix with Wine's server and a display, which together take longer to start than most tests to run. One
# serves many runs, one at a time. A run leaves it to the next one only after it has ended well and left nothing behind. A
# session that nobody takes is removed after some seconds.

# Takes a session that is free, or makes one; sets WINEPREFIX and DISPLAY. Descriptor 9 locks the session as long as the
# script runs, so the script must not pass it on to anything that it starts.
take_session() {
  local number=0
  mkdir -p "$lindrel_wine/sessions"
  until flock -n 9 2>/dev/null; do
    number=$((number + 1))
    exec 9>"$lindrel_wine/sessions/$number.lock"
  done
  session=$lindrel_wine/sessions/$number
  export WINEPREFIX=$session/prefix
  # A program and Wine's server wait for each other all the time, and take turns faster on one processor than on two.
  # Where that cannot be set, runs only take longer. Long runs use all processors, as users do.
  [ -n "${LINDREL_LONG:-}" ] || taskset -cp $(((number - 1) % $(nproc))) $$ >/dev/null 2>&1 || true
  # There is no such file after a run that was killed, and no keeper after the machine was switched off.
  [ -e "$session/free" ] && is_kept || start_session 9>&-
  rm "$session/free"
  DISPLAY=$(<"$session/display")
  export DISPLAY
  # The pointer is there on a new display; the last run may have moved it.
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
  # A program that waits forever: Wine's server and services end with the last program, and a run that starts just then
  # would not find them.
  mkfifo "$session/silence"
  wine 'C:\windows\system32\cmd.exe' <>"$session/silence" >/dev/null 2>&1 &
  # Returns when the services are there.
  wine 'C:\windows\system32\cmd.exe' /c exit </dev/null >/dev/null 2>&1
  what_is_there >"$session/there"
  touch "$session/free"
  # The keeper holds the lock as long as it runs.
  exec 8>"$session/kept"
  flock 8
  setsid bash -c 'source "$1/tests/wine-env.sh"; session=$2; keep_session' - "$lindrel_root" "$session" \
    </dev/null >/dev/null 2>&1 &
  exec 8>&-
  echo $! >"$session/keeper"
}

# Removes Ctrl, Alt and Shift from the display's keyboard. When a window gets the focus, the display reports which keys are
# down, late if the machine is busy. It does not know of the keys that a test holds down, so Wine then releases them. It
# does not do so with keys that the display does not have.
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
    # After the machine was switched off, the number may be that of another process.
    grep -qszxF "WINEPREFIX=$session/prefix" "/proc/$process/environ" && kill "$process" 2>/dev/null
  done
  chmod -R u+w "$session"
  rm -rf "$session"
}

# Leaves the session to the next run. Returns 1, and ends the session, if the run has left something behind.
leave_session() {
  local left deadline=$((SECONDS + 10))
  until left=$(diff "$session/there" <(what_is_there)); do
    # What the program has started may need a moment to end.
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

# Prints the files outside of the system's own folders, and the programs that are not Wine's. While a program starts, the
# path of its loader precedes its own.
what_is_there() {
  (cd "$WINEPREFIX/drive_c" && find . -path ./windows -prune -o -print | sort)
  local process
  for process in $(grep -lszZxF "WINEPREFIX=$WINEPREFIX" /proc/[0-9]*/environ | tr '\0' '\n'); do
    { tr '\0' ' ' <"${process%environ}cmdline"; echo; } 2>/dev/null
  done | grep -i '\.exe' | grep -viE '^([^ ]*/[^ ]* )*C:\\windows' | sort
}

# The keeper of a session: ends it once it has been free for some seconds.
keep_session() {
  export WINEPREFIX=$session/prefix
  exec 9>"$session.lock"
  while [ "$(cat "$session/keeper" 2>/dev/null)" = $$ ]; do
    read -rt 2 <> <(:) || true
    flock -n 9 || continue
    # The run that took it was killed, or nobody has taken it for long.
    if [ ! -e "$session/free" ] || [ $(($(date +%s) - $(stat -c %Y "$session/free"))) -gt 10 ]; then
      end_session
    fi
    flock -u 9
  done
}

# The 32-bit libraries that an installer needs, from Wine's own package for that width. The package is not installed,
# which would need i386 beside amd64 in the whole system.
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
  # A list that cannot be downloaded matters only if the package is in none of the others; the download fails then.
  apt-get "${options[@]}" update >/dev/null 2>&1 || true
  (cd "$apt" && quietly apt-get "${options[@]}" download "libwine:i386=$(dpkg-query -W -f='${Version}' libwine)")
  local members=("${lindrel_libraries_32[@]/%/.dll}" cmd.exe)
  dpkg-deb --fsys-tarfile "$apt"/libwine_*.deb |
    tar -x -C "$apt/libraries" --transform='s|.*/||' "${members[@]/#/./usr/lib/i386-linux-gnu/wine/i386-windows/}"
  # This one is in the 64-bit package.
  cp "$(dirname "$(dpkg-query -L libwine | grep -m1 '/x86_64-windows/ntdll.dll$')")/../i386-windows/zlib1.dll" \
    "$apt/libraries/"
  mkdir -p "$(dirname "$target")"
  mv "$apt/libraries" "$target"
  rm -rf "$apt"
}

# Enables the prefix to run 32-bit programs, including those that ask for version 6 of the common controls or make
# shortcuts.
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

# Whether a 32-bit program can be started: tries one that every prefix with these libraries has. It crashes on kernels
# whose 32-bit emulation is switched off; LINDREL_32_BIT=no simulates such a kernel.
program_32='C:\windows\syswow64\cmd.exe'
ends_with_32() { # command that runs a program of Windows
  [ "${LINDREL_32_BIT:-}" != no ] || return 1
  local code=0
  "$@" "$program_32" /c exit 32 </dev/null >/dev/null 2>&1 || code=$?
  [ $code = 32 ]
}

# The same with the libraries above, in a prefix for this purpose only.
runs_32_bit() (
  own_prefix
  use_libraries_32
  ends_with_32 timeout -k 5 60 wine
)

# Starts a display of 1280x1024 or another size, with a window manager; sets DISPLAY and wine_processes (process ids).
wine_processes=()
start_display() {
  local number_file
  number_file=$(mktemp)
  # Without -noreset a display starts over, with all its keys, when its last program disconnects.
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
  # Keeps its log below build/ too.
  XDG_CACHE_HOME=$lindrel_wine/cache openbox --sm-disable >/dev/null 2>&1 &
  wine_processes+=($!)
}

stop_display() {
  [ ${#wine_processes[@]} -eq 0 ] || kill "${wine_processes[@]}" 2>/dev/null || true
  wait "${wine_processes[@]}" 2>/dev/null || true
  wine_processes=()
}
