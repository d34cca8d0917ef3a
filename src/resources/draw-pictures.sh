#!/usr/bin/env bash
# Renders the drawings pictures/*.svg into the icons and strips next to them, from which the program is built. Run it
# after changing a drawing. Needs rsvg-convert, icotool, ImageMagick and Python.
set -eu
cd "$(dirname "$0")/pictures"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# The toolbar's pictures, in its order. Each size is one strip, so that the program loads one picture instead of ten.
toolbar=(mnuNew mnuOpen mnuSave mnuAdd mnuExport mnuEdit mnuFind mnuMove mnuDel mnuSelectAll)

# The sizes at 100, 125, 150 and 200 %. The shell shows the program's own icon in larger sizes too.
sizes_of() { # name
  case $1 in
    mnu* | picGo) echo 24 30 36 48 ;;
    frmStart) echo 16 20 24 32 40 48 64 256 ;;
    *) echo 16 20 24 32 ;;
  esac
}

for drawing in *.svg; do
  name=${drawing%.svg}
  rendered=()
  for size in $(sizes_of "$name"); do
    ../fit-to-pixels.py "$drawing" "$size" | rsvg-convert -f png -o "$work/plain.png"
    convert "$work/plain.png" -strip "PNG32:$work/$name-$size.png"
    [ "$size" -lt 256 ] || rendered+=(-r) # stays compressed, as Windows expects it
    rendered+=("$work/$name-$size.png")
  done
  [[ $name == mnu* ]] || icotool -c -o "$name.ico" "${rendered[@]}"
done

for size in $(sizes_of mnu); do
  (cd "$work" && convert "${toolbar[@]/%/-$size.png}" +append -define bmp3:alpha=true BMP3:-) >"ImageList1_$size.bmp"
done
