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
download_libraries_32
echo "== testing"
exec ctest --preset all -j "$(nproc)"
