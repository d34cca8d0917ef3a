#!/usr/bin/env bash
# Builds everything and runs every test: natively, with sanitizers, and under Wine. Ends with CTest's summary.
set -eu
cd "$(dirname "$0")"
source tests/wine-env.sh
install_packages
wine_environment

for preset in native sanitize x64 x86 fuzz; do
  echo "== $preset"
  cmake --preset "$preset" >/dev/null
  cmake --build --preset "$preset" -- -k 0
done
make_template_prefix

# One CTest run over the tests of all builds, so that one summary ends it.
mkdir -p build/all
printf 'subdirs("%s" "%s" "%s" "%s" "%s")\n' ../native ../sanitize ../x64 ../x86 ../fuzz >build/all/CTestTestfile.cmake
exec ctest --test-dir build/all -j "$(nproc)" --output-on-failure
