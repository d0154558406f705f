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

readonly FALLBACK_MIRROR=http://deb.debian.org/debian

case ${1-} in
12) codename=bookworm ;;
13) codename=trixie ;;
*) die "say which release of Debian: 12 or 13" ;;
esac
release=$1
shift
presets=("$@")
(($#)) || presets=(release)

if ((EUID != 0)); then
    as_root "$0" "$release" "${presets[@]}"
    exit
fi

folder=$root/build/debian-$release
system=$folder/system

# apart COMMAND…: runs it with mounts and processes of its own. All end when this shell does.
apart() { setpriv --pdeathsig KILL unshare --mount --pid --fork --kill-child "$@"; }

# inside COMMAND…: runs it in the chroot, with the project at /morvantile: read-only but for
# /morvantile/build, which is the chroot's own.
inside() {
    # shellcheck disable=SC2016
    apart bash -euc '
        root=$1 folder=$2 system=$3
        shift 3
        mount -t proc proc "$system/proc"
        mount --rbind /dev "$system/dev"
        mount --bind "$root" "$system/morvantile"
        mount -o remount,bind,ro "$system/morvantile"
        mount --bind "$folder/build" "$system/morvantile/build"
        exec chroot "$system" env -i "$@"' \
        inside "$root" "$folder" "$system" PATH=/usr/sbin:/usr/bin HOME=/root LC_ALL=C.UTF-8 \
        CCACHE_DIR=/morvantile/build/ccache "$@"
}

# mirror: where this machine's own packages come from.
mirror() {
    local uris
    mapfile -t uris < <(apt-get indextargets --format '$(REPO_URI)' \
        'Created-By: Packages' 'Origin: Debian' 'Label: Debian' 'Component: main' 2>/dev/null)
    printf '%s\n' "${uris[0]:-$FALLBACK_MIRROR}"
}

# make_system: the chroot, made beside its place: what is there is whole.
make_system() {
    local log=$folder/system.log proxy='' options=()
    say "Making a chroot of Debian $release; this takes some minutes."
    eval "$(apt-config shell proxy Acquire::http::Proxy)"
    [[ -z $proxy ]] || options+=(--aptopt="Acquire::http::Proxy \"$proxy\"")
    rm -rf "$system.new"
    if ! mmdebstrap --variant=apt "${options[@]}" "$codename" "$system.new" "$(mirror)" \
        >"$log" 2>&1; then
        tail -n 15 "$log" >&2
        die "the chroot could not be made (see above, and $log)"
    fi
    mkdir "$system.new/morvantile"
    mv "$system.new" "$system"
}

mkdir -p "$folder/build"
exec 8>"$folder/.lock"
flock -n 8 || die "another run is busy with Debian $release"
apart true 2>/dev/null ||
    die "the tests on Debian $release need the right to mount: run a container with CAP_SYS_ADMIN"
ensure_packages chroot
[[ -d $system ]] || make_system
cp -L /etc/resolv.conf "$system/etc/"
say "== Debian $release"
inside /morvantile/test.sh --without-desktop "${presets[@]}"
