#!/usr/bin/env bash
# Builds and tests on another Debian release, in a chroot: everything but the tests that need a
# desktop. Ends with CTest's summary; fails when anything failed.
#   scripts/try-debian.sh 12|13 [PRESET…]     the presets of ./test.sh, `release` unless said
#
# Works as root or through sudo, and needs the right to mount. The chroot stands in
# build/debian-RELEASE, with what is built in it, its own sample videos and compiler cache; it is
# made once. Remove the folder to have it made from the newest packages. Mounts and processes are in
# namespaces of their own, which end with this script.
set -euo pipefail
root=$(dirname -- "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")")
source "$root/scripts/setup.sh"
source "$root/scripts/chroot.sh"

release=${1-}
codename_of "$release" >/dev/null
shift
presets=("$@")
(($#)) || presets=(release)

if ((EUID != 0)); then
    as_root "$0" "$release" "${presets[@]}"
    exit
fi

folder=$root/build/debian-$release
lock_chroot "$folder"
make_chroot "$folder" "$release" apt
say "== Debian $release"
inside "$folder" CCACHE_DIR=/morvantile/build/ccache \
    /morvantile/test.sh --without-desktop "${presets[@]}"
