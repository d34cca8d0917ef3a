#!/usr/bin/env bash
# Runs the end-to-end tests on the program of one width, and the tests of what the windows paint, under Debian 13's Wine 10, in
# a root folder below build/wine10:
#   tests/wine10.sh x64|x86
# Needs root, and the builds x64 and x86. The exit code is 77 where this cannot be tried.
set -eu
width=$1
cd "$(dirname "$0")/.."
source tests/wine-env.sh
checkout=$PWD
root=$PWD/build/wine10/root
packages=(wine wine64 xvfb openbox xdotool locales procps fonts-liberation)

in_root() { # with mounts that nobody else sees and that end with the command
  as_root unshare -m bash -c '
    root=$1 checkout=$2
    shift 2
    mount -t proc proc "$root/proc"
    mount --rbind /dev "$root/dev"
    mkdir -p "$root$checkout"
    mount --bind "$checkout" "$root$checkout"
    exec chroot "$root" env -u WINEPREFIX LANG=C.UTF-8 LC_ALL=C.UTF-8 PATH=/usr/sbin:/usr/bin:/sbin:/bin "$@"' \
    - "$root" "$checkout" "$@"
}

cannot() { echo "$width cannot be run here: $*"; exit 77; }

make_root() {
  [ ! -e "$root/ready" ] || return 0
  echo "== making a root with Debian 13 and its Wine (about 700 MB of downloads) in build/wine10"
  install_packages debootstrap
  mkdir -p "$root"
  # A download that stalls is tried again after half a minute, not after a quarter of an hour.
  printf 'timeout = 30\ntries = 5\n' >"$root/../wgetrc"
  [ -e "$root/etc/debian_version" ] || as_root env WGETRC="$root/../wgetrc" debootstrap --variant=minbase --include=ca-certificates trixie "$root"
  in_root bash -eu -c '
    export DEBIAN_FRONTEND=noninteractive
    dpkg --add-architecture i386
    apt-get update -q
    apt-get install -y -q --no-install-recommends "$@"
    localedef -i hu_HU -f UTF-8 hu_HU.UTF-8 || [ $? = 1 ]
    # The part of the 32-bit Wine that works together with the 64-bit one.
    cd /tmp
    apt-get download libwine:i386
    # As long as dpkg knows that architecture, wine expects a complete 32-bit package.
    dpkg --remove-architecture i386
    dpkg-deb -x libwine_*_i386.deb libwine32
    cp -r "$(find libwine32 -type d -name i386-windows)" "$(dirname "$(find /usr/lib -type d -name x86_64-windows)")/"
    rm -rf libwine32 libwine_*' - "${packages[@]}"
  as_root touch "$root/ready"
}

run_in_session() { # arguments of tests/wine-run.sh, perhaps with assignments before them
  in_root env HOME=/root LINDREL_WINE="$checkout/build/wine10/prefixes" "$@"
}

can_be_root || cannot "only root can make a root for Wine 10"
as_root unshare -m true 2>/dev/null || cannot "there are no namespaces for a root of its own"
make_root
if [ "$width" = x86 ]; then
  ends_with_32 run_in_session "$checkout/tests/wine-run.sh" || cannot "32-bit programs cannot be started"
fi
wine_10=$(in_root wine --version)
if [ "$width" = x64 ]; then # the window tests have this width only
  echo "== what the windows paint under $wine_10"
  run_in_session "$checkout/tests/wine-run.sh" "$checkout/build/x64/tests/window/window_tests.exe" --gtest_brief=1 \
    --gtest_filter='*Painting*:frmFindLayoutTest.*'
fi
echo "== end-to-end tests of $width under $wine_10"
# All but TrayTest, which clicks on an icon in the window that Wine 8 makes for the notification area.
run_in_session LINDREL_PROGRAM="Z:$checkout/build/$width/lindrel/lindrel.exe" \
  "$checkout/tests/wine-run.sh" "$checkout/build/x64/tests/e2e/e2e_tests.exe" --gtest_brief=1 --gtest_filter=-TrayTest.*
