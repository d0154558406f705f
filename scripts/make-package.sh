#!/usr/bin/env bash
# Builds the Debian packages, checks them with lintian and leaves them in build/package/RELEASE.
# Fails if lintian finds anything.
#   scripts/make-package.sh [12|13]     for this release of Debian; default: the running one
#
# Packages for another release are built in its chroot in build/debian-RELEASE, which
# scripts/try-debian.sh uses, too: as root or through sudo, with permission to mount.
set -euo pipefail
root=$(dirname -- "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")")
source "$root/scripts/setup.sh"
source "$root/scripts/chroot.sh"

running=$(. /etc/os-release && printf '%s\n' "${VERSION_ID-}")
release=${1:-$running}
codename=$(codename_of "$release")
target=$root/build/package/$release

if [[ $release != "$running" ]]; then
    if ((EUID != 0)); then
        as_root "$0" "$release"
        exit
    fi
    folder=$root/build/debian-$release
    lock_chroot "$folder"
    make_chroot "$folder" "$release" apt
    inside "$folder" CCACHE_DIR=/morvantile/build/ccache /morvantile/scripts/make-package.sh
    rm -rf "$target"
    mkdir -p "$target"
    cp -a "$folder/build/package/$release/." "$target"
    exit
fi

ensure_build_folder
ensure_packages run package
rm -rf "$target" "$target.new"
mkdir -p "$target.new"
cd "$target.new"

# The sources as in a release, with Debian's folder where its tools expect it, and a version that is
# lower than the next release's and Debian's own.
version=$(sed -n '1s/^morvantile (\([^)]*\)) .*/\1/p' "$root/packaging/debian/changelog")
[[ -n $version ]] || die "packaging/debian/changelog begins with no version"
sources=morvantile-$version~deb$release
mkdir "$sources"
tar -C "$root" -c --exclude-vcs --exclude=./build --exclude=./out --exclude=__pycache__ \
    --exclude='*.user' . | tar -C "$sources" -x
mv "$sources/packaging/debian" "$sources/debian"
sed -i "1s/ (.*/ ($version~deb$release) $codename; urgency=medium/" "$sources/debian/changelog"

# Debian's tools give the build a temporary home folder.
export CCACHE_DIR=${CCACHE_DIR:-$(command -v ccache >/dev/null && ccache --get-config cache_dir)}
export CCACHE_BASEDIR=$PWD/$sources CCACHE_NOHASHDIR=1
say "== Building the packages for Debian $release; build/package/$release.log says how it goes"
if ! (cd "$sources" && dpkg-buildpackage --no-sign) >"$target.log" 2>&1; then
    tail -n 15 "$target.log" | cut -c 1-300 >&2
    die "the packages could not be built (see above, and $target.log)"
fi
rm -rf "$sources"
say "== lintian"
lintian --pedantic --fail-on error,warning,pedantic "morvantile_$version~deb${release}_"*.changes
mv "$target.new" "$target"
printf '%s\n' "$target"/*.deb
