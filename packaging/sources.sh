#!/usr/bin/env bash
# Lists the sources by the history of the project, or by the folder itself if there is no history (an archive, a plain
# copy):
#   packaging/sources.sh files   the files, relative to the root, each followed by a NUL
#   packaging/sources.sh date    the time of the commit, or of the newest file, in seconds since 1970
set -eu
cd "$(dirname "$0")/.."

# A copy may lie inside somebody else's repository, or belong to another user.
has_history() {
  command -v git >/dev/null && [ "$(git rev-parse --show-toplevel 2>/dev/null)" = "$(pwd -P)" ]
}

files_of_folder() { find . \( -path ./build -o -path ./dist -o -path ./.git \) -prune -o -type f -printf '%P\0'; }

case "$1" in
  files)
    if has_history; then
      # Git still lists files that are deleted but not yet committed as such.
      comm -z -23 <(git ls-files -z --cached --others --exclude-standard | sort -z) <(git ls-files -z --deleted | sort -z)
    else
      files_of_folder
    fi
    ;;
  date)
    if has_history; then
      git log -1 --format=%ct
    else
      echo "There is no history of the sources here: the packages take the date of the newest file." >&2
      files_of_folder | xargs -0 stat -c %Y | sort -n | tail -n 1
    fi
    ;;
  *) echo "usage: $0 files|date" >&2; exit 2 ;;
esac
