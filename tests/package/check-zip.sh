#!/usr/bin/env bash
# Checks the contents of the zips, and that the 64-bit program works where it was unpacked, even in a write-protected
# folder whose name has blanks and accents:
#   tests/package/check-zip.sh <e2e_tests.exe>
set -eu
e2e_tests=$1
cd "$(dirname "$0")/../.."
source tests/wine-env.sh
wine_environment
# Root could write to any folder, so it gives up that capability.
if [ "$(id -u)" = 0 ] && [ -z "${LINDREL_PLAIN_ROOT:-}" ]; then
  LINDREL_PLAIN_ROOT=1 exec setpriv --bounding-set=-dac_override,-dac_read_search "$0" "$e2e_tests"
fi
make_template_prefix
own_prefix
start_display

expected=$(
  printf '%s\n' ./lindrel.exe ./lnd.chm ./minta.lnd ./OLVASS.html
  (cd styles && printf './styles/%s\n' *.aut)
  printf './LICENSES/%s\n' Artistic.txt GFDL-1.2.txt GPL.txt GPL-2.txt GPL-3.txt LGPL.txt LGPL-2.txt LGPL-2.1.txt \
    gcc-mingw-w64.txt mingw-w64.txt
)
for width in x64 x86; do
  folder="$WINEPREFIX/drive_c/users/Szép új könyvjelzők $width"
  mkdir "$folder"
  python3 -m zipfile -e dist/lindrel-*-"$width".zip "$folder"
  cd "$folder/Lindrel"
  diff <(sort <<<"$expected") <(find . -type f | sort) || { echo "the zip of $width holds other files"; exit 1; }
  sources=$OLDPWD
  cmp lindrel.exe "$sources/build/$width/lindrel/lindrel.exe"
  cmp lnd.chm "$sources/build/$width/lindrel/lnd.chm"
  cmp minta.lnd "$sources/samples/minta.lnd"
  diff -r styles "$sources/styles" --exclude=CMakeLists.txt
  cd "$sources"
  tests/package/check-first-page.py "$folder/Lindrel" OLVASS.md dist
done

folder="$WINEPREFIX/drive_c/users/Szép új könyvjelzők x64/Lindrel"
chmod -R a-w "$folder"
if touch "$folder/proba" 2>/dev/null; then echo "the folder can be written to"; exit 1; fi
export LINDREL_PROGRAM='C:\users\Szép új könyvjelzők x64\Lindrel\lindrel.exe'
timeout -k 10 300 wine "$e2e_tests" --gtest_filter='SampleBookTest.*:HelpTest.*' --gtest_brief=1 </dev/null
