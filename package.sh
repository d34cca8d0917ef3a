#!/usr/bin/env bash
# Builds what users get into dist/: a zip for each width of Windows, one installer for both, the bill of materials and
# the sums of them all. The same commit gives the same bytes, whenever and wherever it is built.
set -eu
cd "$(dirname "$0")"
source tests/wine-env.sh
install_packages "${packages_to_build[@]}" "${packages_to_pack[@]}"
# Every time in the packages is that of the sources.
SOURCE_DATE_EPOCH=${SOURCE_DATE_EPOCH:-$(packaging/sources.sh date)}
export SOURCE_DATE_EPOCH
umask 022
stage=build/package
rm -rf "$stage" dist
mkdir -p "$stage" dist

for width in x64 x86; do
  echo "== the program, $width"
  cmake --preset "$width" >/dev/null
  cmake --build --preset "$width" --target lindrel help_file
  cmake --install "build/$width" --prefix "$stage/$width/Lindrel" >/dev/null
done
version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' build/x64/CMakeCache.txt)

packaging/third_party.py licences "$stage/LICENSES"
packaging/make-first-page.py OLVASS.md "$stage/OLVASS.html"
packages=()
for width in x64 x86; do
  package=dist/lindrel-$version-$width.zip
  echo "== $package"
  cp -r "$stage/LICENSES" "$stage/OLVASS.html" samples/minta.lnd "$stage/$width/Lindrel/"
  packaging/make-zip.py "$package" "$stage/$width/Lindrel" "$SOURCE_DATE_EPOCH"
  packages+=("$package")
done

package=dist/lindrel-$version-telepito.exe
echo "== $package"
packaging/make-installer.sh "$version" "$stage" "$package"
packages+=("$package")

packaging/third_party.py bill "$version" "$SOURCE_DATE_EPOCH" "${packages[@]}" >"dist/lindrel-$version.spdx.json"
(cd dist && sha256sum lindrel-* | tee SHA256SUMS)
