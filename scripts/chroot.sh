# shellcheck shell=bash
# Chroots of Debian releases, for scripts that need a system other than the current one. Sourced
# after setup.sh. Must run as root, with permission to mount.
#
# A chroot is a folder for a release: FOLDER/system is its root, FOLDER/build holds the results.
# Both are kept; remove the folder to recreate them from the newest packages. Mounts and processes
# are in namespaces of their own, which end with the script.

: "${root:?must be the folder of the project}"

readonly FALLBACK_MIRROR=http://deb.debian.org/debian

# codename_of RELEASE
codename_of() {
    case $1 in
    12) echo bookworm ;;
    13) echo trixie ;;
    *) die "say which release of Debian: 12 or 13" ;;
    esac
}

# apart COMMAND…: runs it with separate mounts and processes, which end with this shell.
apart() { setpriv --pdeathsig KILL unshare --mount --pid --fork --kill-child "$@"; }

# inside FOLDER [NAME=VALUE…] COMMAND…: runs it in the chroot, with the project at /morvantile:
# read-only except for /morvantile/build, which belongs to the chroot.
inside() {
    local folder=$1
    shift
    apart bash -euc '
        root=$1 folder=$2
        shift 2
        system=$folder/system
        mount -t proc proc "$system/proc"
        mount --rbind /dev "$system/dev"
        mount --bind "$root" "$system/morvantile"
        mount -o remount,bind,ro "$system/morvantile"
        mount --bind "$folder/build" "$system/morvantile/build"
        exec chroot "$system" env -i "$@"' \
        inside "$root" "$folder" PATH=/usr/sbin:/usr/bin HOME=/root LC_ALL=C.UTF-8 "$@"
}

# mirror: the source of this machine's own packages.
mirror() {
    local uris
    mapfile -t uris < <(apt-get indextargets --format '$(REPO_URI)' \
        'Created-By: Packages' 'Origin: Debian' 'Label: Debian' 'Component: main' 2>/dev/null)
    printf '%s\n' "${uris[0]:-$FALLBACK_MIRROR}"
}

# make_chroot FOLDER RELEASE VARIANT: creates it if it is missing. It is created under another name,
# so that an existing one is complete. The variant is one of mmdebstrap's: apt, or minbase for the
# packages of every Debian system.
make_chroot() {
    local folder=$1 release=$2 variant=$3
    local system=$folder/system log=$folder/system.log proxy='' options=()
    apart true 2>/dev/null ||
        die "a chroot of Debian $release needs the right to mount: run a container with" \
            "CAP_SYS_ADMIN"
    mkdir -p "$folder/build"
    if [[ ! -d $system ]]; then
        ensure_packages chroot
        say "Making a chroot of Debian $release; this takes some minutes."
        eval "$(apt-config shell proxy Acquire::http::Proxy)"
        [[ -z $proxy ]] || options+=(--aptopt="Acquire::http::Proxy \"$proxy\"")
        rm -rf "$system.new"
        if ! mmdebstrap --variant="$variant" "${options[@]}" "$(codename_of "$release")" \
            "$system.new" "$(mirror)" >"$log" 2>&1; then
            tail -n 15 "$log" >&2
            die "the chroot could not be made (see above, and $log)"
        fi
        mkdir "$system.new/morvantile"
        mv "$system.new" "$system"
    fi
    cp -L /etc/resolv.conf "$system/etc/"
}

# lock_chroot FOLDER: allows one run at a time, until this shell ends.
lock_chroot() {
    mkdir -p "$1"
    exec 8>"$1/.lock"
    flock -n 8 || die "another run is busy with $1"
}
