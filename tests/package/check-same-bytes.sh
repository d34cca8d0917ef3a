#!/usr/bin/env bash
# Checks that the packages in dist/ are the same, byte for byte, when they are built again from scratch in another folder
# from an archive of the sources: without history, each file with the time of the commit.
set -eu
cd "$(dirname "$0")/../.."
sums="$PWD/dist/SHA256SUMS"
(cd dist && sha256sum --check --quiet SHA256SUMS)

other=$(mktemp -d "${TMPDIR:-/tmp}/másik mappa.XXXXXX")
trap 'rm -rf "$other"' EXIT
tests/package/copy-as-archive.sh "$other"
mkdir "$other/build"
CCACHE_DISABLE=1 "$other/package.sh" >"$other/build/report" 2>&1 || { cat "$other/build/report"; exit 1; }
diff "$sums" "$other/dist/SHA256SUMS"
