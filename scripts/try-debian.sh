#!/usr/bin/env bash
# Builds and tests on another Debian release, in a chroot: everything except the tests that need a
# desktop. Ends with CTest's summary; fails if anything failed.
#   scripts/try-debian.sh 12|13 [PRESET…]     the presets of ./test.sh; default: release
#
# Works as root or through sudo, with permission to mount. The chroot is in build/debian-RELEASE,
# together with its builds, sample videos and compiler cache, and is created only once. Remove the
# folder to recreate it from the newest packages. Mounts and processes are in namespaces of their
# own, which end with this script.
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
