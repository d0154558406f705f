# shellcheck shell=bash
# Shared by run.sh and test.sh: installing packages, configuring and building. Sourced with `root`
# set to the project's folder. All messages go to standard error, so that a program's own output
# stays clean.

: "${root:?must be the folder of the project}"

say() { printf '%s\n' "$*" >&2; }

die() {
    say "error: $*"
    exit 1
}

# packages_in SECTION…: the packages of packages.txt under [SECTION].
packages_in() {
    local line wanted=false
    while IFS= read -r line || [[ -n $line ]]; do
        line=${line%%#*}
        line=${line//[[:space:]]/}
        case $line in
            '') ;;
            '['*']')
                wanted=false
                [[ " $* " == *" ${line:1:-1} "* ]] && wanted=true
                ;;
            *) if $wanted; then printf '%s\n' "$line"; fi ;;
        esac
    done <"$root/packages.txt"
}

# missing_packages NAME…: those that are not installed. Queries only dpkg, which takes milliseconds.
missing_packages() {
    local name status installed=' '
    while read -r name status; do
        [[ $status == installed ]] && installed+="$name "
    done < <(dpkg-query -W -f='${Package} ${db:Status-Status}\n' "$@" 2>/dev/null)
    for name in "$@"; do
        [[ $installed == *" $name "* ]] || printf '%s\n' "$name"
    done
}

# as_root COMMAND…: runs it as root; asks for a password only on a terminal.
as_root() {
    if ((EUID == 0)); then
        "$@"
    elif [[ -t 0 ]]; then
        sudo "$@"
    else
        sudo -n "$@"
    fi
}

# ensure_packages SECTION…: installs the missing packages of these sections of packages.txt.
ensure_packages() {
    local wanted missing log=$root/build/install.log
    mapfile -t wanted < <(packages_in "$@")
    if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
        die "packages can be installed on Debian only (12 or 13). On another system build by hand:" \
            "CONTRIBUTING.md says how, packages.txt what it takes."
    fi
    mapfile -t missing < <(missing_packages "${wanted[@]}")
    ((${#missing[@]})) || return 0

    local by_hand="apt-get update; apt-get install --no-install-recommends ${missing[*]}"
    if ((EUID != 0)) && ! command -v sudo >/dev/null; then
        die "packages are missing, and only root can install them. As root, run: $by_hand"
    fi
    say "Installing ${#missing[@]} Debian packages and what they need; this can take some minutes:"
    say "  ${missing[*]}"
    local apt=(as_root env DEBIAN_FRONTEND=noninteractive apt-get -q -o DPkg::Lock::Timeout=300)
    # A failed update is not fatal as long as the packages themselves are available.
    "${apt[@]}" update >"$log" 2>&1 || true
    if ! "${apt[@]}" install -y --no-install-recommends "${missing[@]}" >>"$log" 2>&1; then
        tail -n 15 "$log" >&2
        die "the packages could not be installed (see above, and $log). It takes Debian 12 or 13, a" \
            "network and root or sudo. To install them by hand, as root: $by_hand"
    fi
}

# ensure_build_folder: creates the build folder and locks it until this shell ends or calls
# release_build_folder, because two builds in one folder would interfere.
ensure_build_folder() {
    mkdir -p "$root/build" 2>/dev/null || true
    [[ -w $root/build ]] || die "$root/build cannot be written. Does it belong to another user?"
    exec 9>"$root/build/.lock"
    flock -n 9 || {
        say "Another build is running; waiting for it…"
        flock 9
    }
}

release_build_folder() { exec 9>&-; }

# is_configured PRESET: whether its build folder is ready, and configured for the project's current
# place.
is_configured() {
    local folder=$root/build/$1
    [[ -f $folder/build.ninja ]] &&
        grep -sqxF "CMAKE_HOME_DIRECTORY:INTERNAL=$root" "$folder/CMakeCache.txt"
}

# configure PRESET [OPTION…]: quietly; warnings and errors are on standard error.
configure() {
    local preset=$1 fresh=()
    shift
    is_configured "$preset" || fresh=(--fresh)
    cmake -S "$root" --preset "$preset" "${fresh[@]}" "$@" >/dev/null
}

# build PRESET TARGET…: builds what changed, and prints nothing if nothing did.
build() {
    local folder=$root/build/$1
    shift
    [[ $(ninja -C "$folder" -n "$@" 2>/dev/null) == *'no work to do'* ]] && return
    ninja -C "$folder" "$@" >&2
}
