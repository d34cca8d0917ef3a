#!/usr/bin/env bash
# Checks that the sources need no history: an archive of them in another folder says in one line that there is none, dates
# its packages the same, configures, and lists its files.
set -eu
cd "$(dirname "$0")/../.."
other=$(mktemp -d "${TMPDIR:-/tmp}/másik mappa.XXXXXX")
trap 'rm -rf "$other"' EXIT
tests/package/copy-as-archive.sh "$other"
mkdir "$other/build"

fail() { echo "$*"; exit 1; }
same() { diff <(echo "$2") <(echo "$3") || fail "$1 (< expected, > there)"; }
files() { "$1/packaging/sources.sh" files | tr '\0' '\n' | sort; }
same "the date" "$(packaging/sources.sh date 2>/dev/null)" "$("$other/packaging/sources.sh" date 2>"$other/build/said")"
same "what it says" "There is no history of the sources here: the packages take the date of the newest file." \
  "$(<"$other/build/said")"
same "the files" "$(files .)" "$(files "$other")"
for preset in native x64; do
  (cd "$other" && cmake --preset $preset) >"$other/build/report" 2>&1 || { cat "$other/build/report"; fail "preset $preset"; }
done
"$other/tests/check-sources.py"
"$other/tests/check-pages.py"
