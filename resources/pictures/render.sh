#!/usr/bin/env bash
# Renders every drawing of this folder into the icon that the program holds, at the sizes of all resolutions. To be run
# after a drawing has changed; the icons are kept in the repository, so that a build needs neither tool.
set -eu
cd "$(dirname "$0")"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
for drawing in *.svg; do
  name=${drawing%.svg}
  pictures=()
  for size in 16 20 24 32 48; do
    rsvg-convert -w "$size" -h "$size" -o "$work/$name-$size.png" "$drawing"
    pictures+=("$work/$name-$size.png")
  done
  rsvg-convert -w 256 -h 256 -o "$work/$name-256.png" "$drawing"
  icotool -c -o "$name.ico" "${pictures[@]}" --raw="$work/$name-256.png"
done
