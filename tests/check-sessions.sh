#!/usr/bin/env bash
# Checks that runs under Wine share a session, never get a dead one, and fail when they leave something behind; that a
# session ends soon after the last of them; that displays have no modifier keys; and that programs start wherever the
# system has put their heap.
set -eu
cd "$(dirname "$0")/.."
source tests/wine-env.sh
wine_environment
make_template_prefix
# This test has sessions of its own, made from the usual template.
template=$lindrel_wine/template
LINDREL_WINE=$(mktemp -d "$lindrel_wine/sessions.XXXXXX")
export LINDREL_WINE
ln -s "$template" "$LINDREL_WINE/template"
session=$LINDREL_WINE/sessions/1
trap 'end_session; rm -rf "$LINDREL_WINE"' EXIT

fail() { echo "$*"; exit 1; }
run() { # expected exit code, command line of Windows
  local code=0
  tests/wine-run.sh 'C:\windows\system32\cmd.exe' /c "$2" >"$LINDREL_WINE/said" || code=$?
  [ $code = "$1" ] || { cat "$LINDREL_WINE/said"; fail "$2: exit code $code instead of $1"; }
}
processes_of_session() { grep -lszxF "WINEPREFIX=$session/prefix" /proc/[0-9]*/environ | cut -d/ -f3 || true; }

run 0 'exit 0'
keeper=$(<"$session/keeper")
run 0 'exit 0'
[ "$(<"$session/keeper")" = "$keeper" ] || fail "two runs do not share their session"
keyboard=$(xkbcomp "$(<"$session/display")" - 2>/dev/null)
[[ $keyboard == *"key <SPCE>"* ]] || fail "the display does not tell its keys"
[[ ! $keyboard =~ "key <"(LCTL|LFSH|LALT)">" ]] || fail "the display has ${BASH_REMATCH[1]}"

# What a machine leaves that is switched off.
kill -9 $(processes_of_session)
[ -e "$session/free" ] || fail "the session is not free any more"
run 0 'exit 0'

run 3 'exit 3'
[ ! -e "$session" ] || fail "a run that failed leaves its session to others"
run 1 'echo x > C:\left.txt'
grep -qx '> ./left.txt' "$LINDREL_WINE/said" || fail "the file that is left behind is not named"

run 0 'exit 0'
touch -d '1 minute ago' "$session/free"
deadline=$((SECONDS + 30))
until [ ! -e "$session" ] && [ -z "$(processes_of_session)" ]; do
  [ $SECONDS -lt $deadline ] || fail "a session that nobody takes stays"
  read -rt 0.1 <> <(:) || true
done

# Takes the page at 7FFE0000, as a heap does by chance, where Wine's preloader has not reserved it.
c++ -x c++ -shared -fPIC -o "$LINDREL_WINE/heap.so" - <<'end'
#include <sys/mman.h>
static void* page = mmap(reinterpret_cast<void*>(0x7FFE0000), 1, PROT_NONE,
                         MAP_PRIVATE | MAP_ANONYMOUS | MAP_FIXED_NOREPLACE, -1, 0);
end
export LD_PRELOAD=$LINDREL_WINE/heap.so
run 0 'exit 0'
