#!/usr/bin/env bash
# Builds everything and runs every test: natively, with sanitizers, and under Wine. Ends with CTest's summary.
#   ./test.sh --wine10   runs the end-to-end tests of both widths under Debian 13's Wine 10 instead
set -eu
cd "$(dirname "$0")"
source tests/wine-env.sh
install_packages
wine_environment

presets=(native sanitize x64 x86 fuzz)
[ "${1:-}" != --wine10 ] || presets=(x64 x86)
for preset in "${presets[@]}"; do
  echo "== building $preset"
  cmake --preset "$preset" >/dev/null
  cmake --build --preset "$preset" -- -k 0
done
[ "${1:-}" != --wine10 ] || exec tests/wine10.sh
make_template_prefix
echo "== testing (the installer's test downloads Wine's 32-bit libraries, 95 MB, into build/ when they are not there)"
exec ctest --preset all -j "$(nproc)"
