#!/usr/bin/env bash
# Installs, upgrades and uninstalls under Wine: the program works, an upgrade keeps what the user has changed, and in the
# end only what the user has made is left:
#   tests/package/check-installer.sh <e2e_tests.exe>
set -eu
e2e_tests=$1
cd "$(dirname "$0")/../.."
source tests/wine-env.sh
wine_environment
# Or Wine would add the entries of the start menu to the menus of this machine's user.
export WINEDLLOVERRIDES="$WINEDLLOVERRIDES;winemenubuilder.exe=d"
version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' build/x64/CMakeCache.txt)
installer=$PWD/dist/lindrel-$version-telepito.exe
stage=$PWD/build/package
make_template_prefix
# In subshells, so that their failures do not end this script.
why_not=
if ! bash -c 'source tests/wine-env.sh; set -e; download_libraries_32'; then
  why_not="Wine's 32-bit libraries cannot be had here"
elif ! bash -c 'source tests/wine-env.sh; wine_environment; runs_32_bit'; then
  why_not="32-bit programs cannot be started here"
fi
own_prefix
if [ -z "$why_not" ]; then
  use_libraries_32
else
  echo "$why_not: the same installer is tried as a 64-bit program."
  installer=$lindrel_wine/telepito-64.exe
  packaging/make-installer.sh "$version" "$stage" "$installer" amd64-unicode
fi
start_display
drive=$WINEPREFIX/drive_c
user=$drive/users/$(id -un)
folder=$user/AppData/Local/Programs/Lindrel
menu="$user/AppData/Roaming/Microsoft/Windows/Start Menu/Programs/Lindrel"
key='HKCU\Software\Microsoft\Windows\CurrentVersion\Uninstall\Lindrel'

fail() { echo "$*"; exit 1; }
# Compares two lists in any order: expected and actual.
same() { diff <(sort <<<"$2") <(sort <<<"$3") || fail "$1 (< expected, > there)"; }
run() { timeout -k 10 120 wine "$@" </dev/null 2>/dev/null; }
eventually() {
  local what=$1 deadline=$((SECONDS + 60))
  shift
  until "$@"; do
    [ $SECONDS -lt $deadline ] || fail "waited in vain for $what"
    read -rt 0.1 <> <(:) || true
  done
}
exit_code() {
  local code=0
  run "$@" || code=$?
  echo $code
}
files_of_user() { (cd "$drive" && find . -path ./windows -prune -o -path '*/Temp/*' -prune -o -print); }
registry() {
  local root
  for root in 'HKCU' 'HKLM\Software'; do
    run reg export "$root" 'C:\windows\temp\registry.txt' /y >/dev/null || fail "cannot read the registry"
    iconv -f UTF-16 -t UTF-8 "$drive/windows/temp/registry.txt"
  done
}
installed_files() { (cd "$folder" && find . -type f); }
values() { run reg query "$key" | tr -d '\r' | sed -n 's/^ \{4\}//p'; }
gone() { [ ! -e "$1" ]; }
uninstall() {
  run "$folder/uninstall.exe" /S
  # The uninstaller runs from a copy of itself; the first process ends before it is done.
  eventually "the uninstaller's end" gone "$folder/uninstall.exe"
  eventually "the registry's entry to go" entry_is_gone
}
entry_is_gone() { ! run reg query "$key" >/dev/null; }

run reg query "$key" >/dev/null && fail "there is an entry before anything is installed"

# Folders that every Windows has.
mkdir -p "${folder%/*}"
run reg add "${key%\\*}" >/dev/null

# Makes Wine one version of Windows; programs of each width have a registry of their own.
be_windows() { # <version> <build>
  local view name='HKLM\Software\Microsoft\Windows NT\CurrentVersion'
  for view in 32 64; do
    run reg add "$name" /v CurrentVersion /d "$1" /f "/reg:$view" >/dev/null
    run reg add "$name" /v CurrentBuildNumber /d "$2" /f "/reg:$view" >/dev/null
  done
}

x86_64-w64-mingw32-strings -el "$installer" | grep -A1 '^CompanyName$' | grep -qx Lindrel || fail "the properties name nobody"

files_before=$(files_of_user)
# The oldest that the project promises to run on.
oldest=$(sed -n 's/.*(version 1607, build \([0-9]*\), or later).*/\1/p' README.md)
for windows in '6.1 7601' '6.3 9600' "10.0 $((oldest - 1))"; do
  echo "== refuses Windows $windows"
  be_windows $windows
  same "the installer's exit code" 2 "$(exit_code "$installer" /S)"
  same "the files" "$files_before" "$(files_of_user)"
done

echo "== says why, unless it is silent"
wine "$installer" </dev/null >/dev/null 2>&1 &
process=$! code=0
message_is_shown() { xdotool search --onlyvisible --name '^Lindrel Telepítő$' >/dev/null 2>&1; }
eventually "the message" message_is_shown
# Closed by a message: a key whose window goes while it is pressed would stay down.
has_ended() {
  run taskkill /im "$(basename "$installer")" >/dev/null || true # it may have ended
  ! kill -0 $process 2>/dev/null
}
eventually "the installer's end" has_ended
wait $process || code=$?
same "the installer's exit code" 2 $code
same "the files" "$files_before" "$(files_of_user)"

be_windows 10.0 "$oldest"
registry_before=$(registry)

echo "== installs"
run "$installer" /S || fail "the installer ends with $?"
own_files=$(
  printf './%s\n' lindrel.exe lnd.chm styles.md5 uninstall.exe
  (cd "$stage/x64/Lindrel" && find ./styles ./LICENSES -type f)
)
same "the installed files" "$own_files" "$(installed_files)"
for file in lindrel.exe lnd.chm styles LICENSES; do
  diff -r "$stage/x64/Lindrel/$file" "$folder/$file" || fail "$file is another one"
done
same "the start menu" $'Lindrel súgó.lnk\nLindrel.lnk' "$(ls "$menu")"
place="C:\\users\\$(id -un)\\AppData\\Local\\Programs\\Lindrel"
for link in lindrel.exe:Lindrel lnd.chm:'Lindrel súgó'; do
  grep -qa "$(sed 's/\\/\\\\/g' <<<"$place")\\\\${link%%:*}" <(tr -d '\0' <"$menu/${link##*:}.lnk") ||
    fail "${link##*:} leads elsewhere"
done
size=$(run reg query "$key" /v EstimatedSize | sed -n 's/.*REG_DWORD *\(0x[0-9a-f]*\).*/\1/p')
same "the values of the entry" "$(cat <<END
DisplayIcon    REG_SZ    $place\\lindrel.exe
DisplayName    REG_SZ    Lindrel
DisplayVersion    REG_SZ    $version
EstimatedSize    REG_DWORD    $size
InstallLocation    REG_SZ    $place
NoModify    REG_DWORD    0x1
NoRepair    REG_DWORD    0x1
Publisher    REG_SZ    Lindrel
QuietUninstallString    REG_SZ    "$place\\uninstall.exe" /S
UninstallString    REG_SZ    "$place\\uninstall.exe"
END
)" "$(values)"
on_disk=$(du -sk --apparent-size "$folder" | cut -f1)
[ $((size)) -gt $((on_disk * 9 / 10)) ] && [ $((size)) -lt $((on_disk * 11 / 10)) ] || fail "$((size)) KB of $on_disk"

echo "== nothing is left of an installation that nobody has changed"
uninstall
eventually "the folder to go" gone "$folder"
same "the files" "$files_before" "$(files_of_user)"
same "the registry" "$registry_before" "$(registry)"

echo "== installs again, and the program opens a book"
run "$installer" /S || fail "the installer ends with $?"
LINDREL_PROGRAM="$place\\lindrel.exe" timeout -k 10 300 \
  wine "$e2e_tests" --gtest_filter='SampleBookTest.*' --gtest_brief=1 </dev/null

echo "== nothing is changed while the program runs"
wine "$folder/lindrel.exe" >/dev/null 2>&1 &
eventually "the main window" xdotool search --onlyvisible --name '^Lindrel $' >/dev/null 2>&1
sums() { (cd "$folder" && find . -type f -exec sha256sum {} +); }
before=$(sums)
same "the installer's exit code" 2 "$(exit_code "$installer" /S)"
# With this argument the uninstaller runs without a copy of itself, so that its exit code is known.
same "the uninstaller's exit code" 2 "$(exit_code "$folder/uninstall.exe" /S "_?=$place")"
same "the installed files" "$before" "$(sums)"
run taskkill /f /im lindrel.exe >/dev/null
wait $! || true

echo "== an upgrade keeps what the user has changed"
newer=$(mktemp -d "$WINEPREFIX/newer.XXXXXX")
cp -r "$stage/x64" "$stage/x86" "$stage/LICENSES" "$newer/"
themes=$newer/x64/Lindrel/styles
echo newer >>"$themes/vilagos.aut"
echo newer >>"$themes/sotet.aut"
mv "$themes/nyomtathato.aut" "$themes/legujabb.aut"
packaging/make-installer.sh 9.9.9 "$newer" "$newer/telepito.exe" "${why_not:+amd64-unicode}"
echo mine >>"$folder/styles/sotet.aut"
echo mine >"$folder/styles/sajat.aut"
rm "$folder/styles/szines.aut"
books=(konyvem.lnd styles/rejtett.lnd LICENSES/harmadik.lnd)
for book in "${books[@]}"; do cp samples/minta.lnd "$folder/$book"; done
changed=$(sha256sum <"$folder/styles/sotet.aut")
run "$newer/telepito.exe" /S || fail "the upgrade ends with $?"
same "the themes after the upgrade" \
  "$(printf '%s\n' klasszikus.aut legujabb.aut rejtett.lnd sajat.aut sotet.aut szines.aut vilagos.aut)" \
  "$(ls "$folder/styles")"
same "the changed theme" "$changed" "$(sha256sum <"$folder/styles/sotet.aut")"
for theme in klasszikus legujabb szines vilagos; do cmp "$themes/$theme.aut" "$folder/styles/$theme.aut"; done
values | grep -qx 'DisplayVersion    REG_SZ    9.9.9' || fail "the version stays the old one"

echo "== only what the user has made is left"
uninstall
left=$(printf './%s\n' "${books[@]}" styles/sajat.aut styles/sotet.aut)
same "the files left" "$left" "$(installed_files)"
same "the changed theme" "$changed" "$(sha256sum <"$folder/styles/sotet.aut")"
for book in "${books[@]}"; do cmp samples/minta.lnd "$folder/$book"; done
