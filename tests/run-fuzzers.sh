#!/usr/bin/env bash
# Runs fuzz targets side by side, each from its seed corpus up to a limit: -max_total_time=SECONDS or -runs=NUMBER. New
# inputs are dropped, except one that fails, which is kept in the folder fuzz of the build.
# Usage: run-fuzzers.sh LIMIT PROGRAM...
set -eu
limit=$1
shift
sources=$(cd "$(dirname "$0")/../fuzz" && pwd)

# The option that gives a target its list of words, if there is one.
dictionary_of() {
  case $1 in
    BookFuzz) echo "-dict=$sources/book.dict" ;;
    ImportPageFuzz) echo "-dict=$sources/html.dict" ;;
    ShortcutFuzz) echo "-dict=$sources/shortcut.dict" ;;
    ThemeFuzz) echo "-dict=$sources/theme.dict" ;;
  esac
}

run_one() { # program
  local name corpus words=()
  name=$(basename "$1")
  corpus=$(mktemp -d)
  mapfile -t words < <(dictionary_of "$name")
  local result=0
  "$1" "$limit" -timeout=10 -max_len=8192 -print_final_stats=1 -verbosity=1 \
    -artifact_prefix="$(dirname "$1")/$name-" "${words[@]}" "$corpus" "$sources/corpus/$name" 2>&1 |
    grep -vE '^(#[0-9]+[[:space:]]+(NEW|REDUCE|pulse|RELOAD)|"|######)' | sed "s/^/$name: /" || result=$?
  rm -rf "$corpus"
  return "$result"
}
set -o pipefail

processes=()
for program in "$@"; do
  run_one "$program" &
  processes+=($!)
done
failed=0
for process in "${processes[@]}"; do wait "$process" || failed=1; done
exit $failed
