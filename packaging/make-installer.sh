#!/usr/bin/env bash
# Makes the installer from the program folders of both widths and the licences:
#   packaging/make-installer.sh <version> <folder with x64/Lindrel, x86/Lindrel and LICENSES> <installer> [<target>]
# The installer is a 32-bit program unless another NSIS target is given.
set -eu
cd "$(dirname "$0")/.."
version=$1 stage=$(realpath "$2") installer=$(realpath "$3")

# Lists for the NSIS script: a line for each file.
list() { # <macro> <folder>
  local file
  for file in "$2"/*; do
    echo "!insertmacro $1 \"$(basename "$file")\""
  done
}
export LC_ALL=C.UTF-8
list Theme "$stage/x64/Lindrel/styles" >"$stage/themes.nsh"
list Licence "$stage/LICENSES" >"$stage/licences.nsh"
# The picture beside the first and the last page.
rsvg-convert --width 96 src/resources/pictures/frmStart.svg |
  convert -size 164x314 xc:'#e6ecf4' - -gravity center -composite -alpha off -type TrueColor BMP3:"$stage/side.bmp"
makensis -V2 -WX -INPUTCHARSET UTF8 "-XTarget ${4:-x86-unicode}" "-DVERSION=$version" "-DSTAGE=$stage" "-DOUTPUT=$installer" \
  packaging/lindrel.nsi
