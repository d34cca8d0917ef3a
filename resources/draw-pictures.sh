#!/usr/bin/env bash
# Renders the drawings of pictures/*.svg into the icon files beside them, which are what the program is built from.
# Run it after changing a drawing. Pictures of the toolbar also get their disabled look, grey and faint.
# Needs rsvg-convert, icotool, ImageMagick and Python.
set -eu
cd "$(dirname "$0")/pictures"
# Buttons show 16 pixels at 100 %, the toolbar 24; both come at 125, 150 and 200 % too, and for the shell in 256.
sizes=(16 20 24 30 32 36 48 256)
disabled_sizes=(16 20 24 30 32 36 48)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# The largest size is kept compressed, as the system expects it.
write_icon() { # name, rendered files' stem, sizes
  local name=$1 stem=$2 arguments=() size
  shift 2
  for size in "$@"; do
    [ "$size" -lt 256 ] || arguments+=(-r)
    arguments+=("$stem-$size.png")
  done
  icotool -c -o "$name.ico" "${arguments[@]}"
}

for drawing in *.svg; do
  name=${drawing%.svg}
  for size in "${sizes[@]}"; do
    ../fit-to-pixels.py "$drawing" "$size" | rsvg-convert -f png -o "$work/plain.png"
    convert "$work/plain.png" -strip "PNG32:$work/$name-$size.png"
  done
  write_icon "$name" "$work/$name" "${sizes[@]}"
  case $name in
    mnu*)
      for size in "${disabled_sizes[@]}"; do
        convert "$work/$name-$size.png" -colorspace gray -channel A -evaluate multiply 0.4 +channel \
          -strip "PNG32:$work/$name-disabled-$size.png"
      done
      write_icon "$name-disabled" "$work/$name-disabled" "${disabled_sizes[@]}"
      ;;
  esac
done
