#!/usr/bin/env bash
# Renders the drawings pictures/*.svg into the icons and strips next to them, from which the program is built. Run it
# after changing a drawing. Needs rsvg-convert, icotool, ImageMagick and Python.
set -eu
cd "$(dirname "$0")/pictures"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# The toolbar's pictures, in its order. Each size is one strip, so that the program loads one picture instead of ten.
toolbar=(mnuNew mnuOpen mnuSave mnuAdd mnuExport mnuEdit mnuFind mnuMove mnuDel mnuSelectAll)

# Sides in pixels at 100, 125, ... 350 % of what they are at 100 %.
scaled() {
  local side percent
  for side in "$@"; do
    for percent in 100 125 150 175 200 225 250 300 350; do echo $((side * percent / 100)); done
  done | sort -nu
}

# The window's icon is small in the frame, larger in the task switcher and largest in the about box; the shell shows it in
# larger sizes yet.
sizes_of() { # name
  case $1 in
    mnu*) echo 24 30 36 48 ;;
    picGo) scaled 24 ;;
    frmStart) scaled 16 32 48; echo 256 ;;
    *) scaled 16 ;;
  esac
}

for drawing in *.svg; do
  name=${drawing%.svg}
  rendered=()
  for size in $(sizes_of "$name"); do
    ../fit-to-pixels.py "$drawing" "$size" | rsvg-convert -f png -o "$work/plain.png"
    convert "$work/plain.png" -strip "PNG32:$work/$name-$size.png"
    [ "$size" -le 32 ] || rendered+=(-r) # stays compressed, which keeps the program small
    rendered+=("$work/$name-$size.png")
  done
  [[ $name == mnu* ]] || icotool -c -o "$name.ico" "${rendered[@]}"
done

for size in $(sizes_of mnu); do
  (cd "$work" && convert "${toolbar[@]/%/-$size.png}" +append -define bmp3:alpha=true BMP3:-) >"ImageList1_$size.bmp"
done
