#!/usr/bin/env bash
# Builds everything and runs every test: natively, with sanitizers, and under Wine. Ends with CTest's summary.
set -eu
cd "$(dirname "$0")"
source tests/wine-env.sh
install_packages
wine_environment

for preset in native sanitize x64 x86 fuzz; do
  echo "== building $preset"
  cmake --preset "$preset" >/dev/null
  cmake --build --preset "$preset" -- -k 0
done
make_template_prefix
echo "== testing (the installer's test downloads Wine's 32-bit libraries, 95 MB, into build/ when they are not there)"
exec ctest --preset all -j "$(nproc)"
