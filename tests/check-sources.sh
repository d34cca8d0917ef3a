#!/usr/bin/env bash
# Rules that no compiler knows: tests never wait for a fixed time and are never switched off, every source is built.
set -u
cd "$(dirname "$0")/.."
failed=0

complain() { # what is wrong, where
  [ -z "$2" ] && return
  printf '%s\n%s\n' "$1" "$2"
  failed=1
}

complain 'A fixed wait in a test (poll with a deadline instead):' \
  "$(grep -rnE '\b([Ss]leep(_for|_until|Ex)?|(u|nano)sleep)[[:blank:]]*\(|^[[:blank:]]*sleep[[:blank:]]+[0-9.]' \
       --include='*.cpp' --include='*.h' --include='*.sh' tests)"
complain 'A test that is switched off:' "$(grep -rnE '\bDISABLED_|GTEST_SKIP' --include='*.cpp' tests)"
complain 'A source file that no target knows:' \
  "$(for file in $(git ls-files '*.cpp' 2>/dev/null | grep -vE '^(tests|bench|fuzz)/'); do
       grep -q "$(basename "$file")" "$(dirname "$file")/CMakeLists.txt" || echo "$file"; done)"
# CTest runs the suite that bears the file's name.
complain 'A suite that does not bear its file'"'"'s name:' \
  "$(for file in $(git ls-files 'tests/window/*Test.cpp' 'tests/e2e/*Test.cpp' 2>/dev/null); do
       grep -HoE '^TEST(_F|_P)?\([A-Za-z0-9_]+' "$file" | grep -v "($(basename "$file" .cpp)$"; done)"
exit $failed
