#!/usr/bin/env bash
# Builds and tests. Ends with CTest's summary.
#   ./test.sh            what every change needs: the portable code with sanitizers, the windows and the program under
#                        Wine
#   ./test.sh --all      everything: both widths, packages, clang-tidy, fuzzing, long walks, Wine 10 if root is available
#   ./test.sh --wine10   the end-to-end tests of both widths under Debian 13's Wine 10
set -eu
cd "$(dirname "$0")"
source tests/wine-env.sh
packages=("${packages_to_build[@]}" "${packages_to_start[@]}" "${packages_to_test[@]}")
run=short
builds=(sanitize x64)
case "${1:-}" in
  '') ;;
  --all)
    run=all
    packages+=("${packages_to_pack[@]}" "${packages_to_test_all[@]}")
    builds=(native sanitize x64 x86 fuzz)
    ;;
  --wine10)
    run=wine10
    packages+=("${packages_to_pack[@]}")
    builds=(x64 x86)
    ;;
  *) sed -n '2,/^set/{s/^# \?//p}' "$0" >&2; exit 2 ;;
esac
install_packages "${packages[@]}"
wine_environment

for build in "${builds[@]}"; do
  echo "== building $build"
  cmake --preset "$build" -DLINDREL_COMPLETE=ON >/dev/null
  cmake --build --preset "$build" -j "$(nproc)" -- -k 0
done
make_template_prefix
echo "== testing"
exec ctest --preset "$run" -j "$(nproc)"
