# shellcheck shell=bash
# Chroots of Debian releases, for the scripts that need another system than the one they run on.
# Sourced after setup.sh. Works as root, and needs the right to mount.
#
# A chroot is a folder that stands for a release: FOLDER/system is its root, FOLDER/build what is
# made in it. Both stay; remove the folder to have them made from the newest packages. Mounts and
# processes are in namespaces of their own, which end with the script.

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

# apart COMMAND…: runs it with mounts and processes of its own. All end when this shell does.
apart() { setpriv --pdeathsig KILL unshare --mount --pid --fork --kill-child "$@"; }

# inside FOLDER [NAME=VALUE…] COMMAND…: runs it in the chroot, with the project at /morvantile:
# read-only but for /morvantile/build, which is the chroot's own.
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

# mirror: where this machine's own packages come from.
mirror() {
    local uris
    mapfile -t uris < <(apt-get indextargets --format '$(REPO_URI)' \
        'Created-By: Packages' 'Origin: Debian' 'Label: Debian' 'Component: main' 2>/dev/null)
    printf '%s\n' "${uris[0]:-$FALLBACK_MIRROR}"
}

# make_chroot FOLDER RELEASE VARIANT: makes it where it is missing, beside its place: what is there
# is whole. The variant is one of mmdebstrap's: apt, or minbase for what every Debian has.
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

# lock_chroot FOLDER: one run at a time, until this shell ends.
lock_chroot() {
    mkdir -p "$1"
    exec 8>"$1/.lock"
    flock -n 8 || die "another run is busy with $1"
}
