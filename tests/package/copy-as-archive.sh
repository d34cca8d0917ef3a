#!/usr/bin/env bash
# Copies the sources into a folder as an archive of the commit would have them: without history, each file with the time
# of the commit.
#   tests/package/copy-as-archive.sh <folder>
set -eu
cd "$(dirname "$0")/../.."
packaging/sources.sh files | xargs -0 cp --parents -t "$1"
find "$1" -type f -exec touch -d "@$(packaging/sources.sh date)" {} +
