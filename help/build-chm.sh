#!/usr/bin/env bash
# Builds the help file from its pages:
#   help/build-chm.sh <pages> <scratch folder> <lnd.chm> <home page>
# The pages are in UTF-8. The viewer reads the contents and the index in the code page of the file's language, so all
# texts are converted to Windows-1250, and their charset declarations are changed. Every picture gets its width.
set -eu
here=$(cd "$(dirname "$0")" && pwd)
pages=$1 scratch=$2 target=$3 home_page=$4

rm -rf "$scratch"
mkdir -p "$scratch"
cp -r "$pages/pictures" "$scratch/"
widths=()
for picture in "$pages"/pictures/*.png; do
  width=$("$here/picture-width.py" "$picture")
  widths+=(-e "s|src=\"pictures/$(basename "$picture")\"|& style=\"width: $width\"|")
done
for source in "$pages"/*.html "$pages"/lnd.hh? "$pages"/*.css; do
  sed -e 's/charset=utf-8/charset=windows-1250/' -e "s|@LINDREL_HOME_PAGE@|$home_page|g" "${widths[@]}" "$source" |
    iconv -f UTF-8 -t WINDOWS-1250 >"$scratch/$(basename "$source")"
done

cd "$scratch"
# The compiler returns 0 even if a page refers to a missing file; only its report tells.
report=$(chmcmd --verbosity 3 lnd.hhp 2>&1) || { echo "$report"; exit 1; }
if grep -iE '^(error|warning)|not found|missing|cannot|can.t' <<<"$report"; then exit 1; fi
"$here/undate-chm.py" lnd.chm
cp lnd.chm "$target"
