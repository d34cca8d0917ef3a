#!/usr/bin/env bash
# That a shipped program runs on every Windows: it asks for the system's own libraries only, and it tells nothing of the
# folder in which it was built.
#   tests/check-program.sh lindrel.exe
set -u
program=$1
allowed=' advapi32 comctl32 comdlg32 gdi32 hhctrl kernel32 msvcrt ole32 oleaut32 shell32 shlwapi user32 uxtheme '
failed=0

libraries=$(x86_64-w64-mingw32-objdump -p "$program" | sed -n 's/^\s*DLL Name: //p' | tr 'A-Z' 'a-z')
[ -n "$libraries" ] || { echo "no libraries found in $program"; exit 1; }
for library in $libraries; do
  case "$allowed" in
    *" ${library%.dll} "*) ;;
    *) echo "$program needs $library, which not every Windows has"; failed=1 ;;
  esac
done

source_folder=$(cd "$(dirname "$0")/.." && pwd)
if grep -qaF "$source_folder" "$program"; then
  echo "$program names the folder of its sources"
  failed=1
fi
exit $failed
