#!/usr/bin/env bash
# That the packages in dist/ come out the same, byte for byte, when the sources are built again from nothing in another
# folder.
set -eu
cd "$(dirname "$0")/../.."
sums="$PWD/dist/SHA256SUMS"
(cd dist && sha256sum --check --quiet SHA256SUMS)

other=$(mktemp -d "${TMPDIR:-/tmp}/másik mappa.XXXXXX")
trap 'rm -rf "$other"' EXIT
git ls-files -z --cached --others --exclude-standard | xargs -0 cp --parents -t "$other"
SOURCE_DATE_EPOCH=$(git log -1 --format=%ct)
export SOURCE_DATE_EPOCH CCACHE_DISABLE=1
"$other/package.sh" >"$other/report" 2>&1 || { cat "$other/report"; exit 1; }
diff "$sums" "$other/dist/SHA256SUMS"
