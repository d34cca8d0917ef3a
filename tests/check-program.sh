#!/usr/bin/env bash
# Checks that a shipped program runs on every Windows from 10 on, and safely: it imports the system's own libraries only,
# of these only such as Windows never looks for beside the program (its known ones, and the common controls by manifest),
# its header switches on the system's protections, its properties say what and whose it is, it is small, and it does not name
# the folder in which it was built.
#   tests/check-program.sh lindrel.exe
set -u
program=$1
allowed=' advapi32 comctl32 gdi32 kernel32 msvcrt ole32 oleaut32 shell32 shlwapi user32 '
failed=0

headers=$(x86_64-w64-mingw32-objdump -p "$program")
libraries=$(sed -n 's/^\s*DLL Name: //p' <<<"$headers" | tr 'A-Z' 'a-z')
[ -n "$libraries" ] || { echo "no libraries found in $program"; exit 1; }
for library in $libraries; do
  case "$allowed" in
    *" ${library%.dll} "*) ;;
    *) echo "$program needs $library, which not every Windows has or finds safely"; failed=1 ;;
  esac
done

# Random load addresses need relocations (.reloc, entry 5 of the directory).
wanted=('MajorSubsystemVersion\s+10$' 'MinorSubsystemVersion\s+0$' 'DYNAMIC_BASE' 'NX_COMPAT' 'TERMINAL_SERVICE_AWARE'
  'Entry 5 [0-9a-f]*[1-9a-f][0-9a-f]* ')
if grep -q '^Magic.*(PE32+)' <<<"$headers"; then
  wanted+=('HIGH_ENTROPY_VA')
fi
for line in "${wanted[@]}"; do
  grep -qE "$line" <<<"$headers" || { echo "the header of $program has no $line"; failed=1; }
done

# What the properties of the file show. (Only the letters of ASCII are compared: the copyright begins with its sign.)
version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$(dirname "$program")/../CMakeCache.txt")
diff - <(x86_64-w64-mingw32-strings -el "$program" | sed -n '/^StringFileInfo$/,/^VarFileInfo$/p') <<END || failed=1
StringFileInfo
040E04B0
CompanyName
Lindrel
FileDescription
Lindrel
FileVersion
$version
InternalName
lindrel
LegalCopyright
 2026 Lindrel
OriginalFilename
lindrel.exe
ProductName
Lindrel
ProductVersion
$version
VarFileInfo
END

# The size is what a download and a start cost. Exception handling takes more of it in the 32-bit program.
most=1100000
if grep -q '^Magic.*(PE32+)' <<<"$headers"; then most=1000000; fi
size=$(stat -c %s "$program")
echo "$program: $size bytes"
[ "$size" -le $most ] || { echo "$program is larger than $most bytes"; failed=1; }

source_folder=$(cd "$(dirname "$0")/.." && pwd)
if grep -qaF "$source_folder" "$program"; then
  echo "$program names the folder of its sources"
  failed=1
fi
exit $failed
