#!/usr/bin/env bash
# What the project is made of, asked of its history, or of the folder itself where it came without one (an archive, a
# plain copy):
#   packaging/sources.sh files   its files, from the root, each ended by a NUL
#   packaging/sources.sh date    the time of the commit, or of the newest file, in seconds since 1970
set -eu
cd "$(dirname "$0")/.."

# A copy may lie in somebody else's repository, or in one that belongs to another user.
has_history() {
  command -v git >/dev/null && [ "$(git rev-parse --show-toplevel 2>/dev/null)" = "$(pwd -P)" ]
}

files_of_folder() { find . \( -path ./build -o -path ./dist -o -path ./.git \) -prune -o -type f -printf '%P\0'; }

case "$1" in
  files)
    if has_history; then
      # The history still lists what is removed but not yet committed so.
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
