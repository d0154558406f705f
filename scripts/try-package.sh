#!/usr/bin/env bash
# Installs the Debian packages on a clean system, runs their programs there and purges them again:
# first only stills, as on a server, then morvantile. Fails if one has too many dependencies, does
# not run, or leaves anything behind.
#   scripts/try-package.sh [12|13]     this release of Debian; default: the running one
#
# Uses the packages that scripts/make-package.sh left in build/package/RELEASE, or builds them.
# Works as root or through sudo, with permission to mount. The clean system is created once, in
# build/clean-RELEASE; each run works on a copy of it. The window is shown on an X server of this
# system; build/package/window-RELEASE.png is a screenshot of it.
set -euo pipefail
root=$(dirname -- "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")")
source "$root/scripts/setup.sh"
source "$root/scripts/chroot.sh"

release=${1:-$(. /etc/os-release && printf '%s\n' "${VERSION_ID-}")}
codename_of "$release" >/dev/null
if ((EUID != 0)); then
    as_root "$0" "$release"
    exit
fi

packages=$root/build/package/$release
[[ -d $packages ]] || "$root/scripts/make-package.sh" "$release"
clean=$root/build/clean-$release
lock_chroot "$clean"
ensure_packages desktop
make_chroot "$clean" "$release" minbase

# A working copy.
folder=$clean/copy
rm -rf "$folder"
mkdir -p "$folder"
cp -a "$clean/system" "$folder/system"
mkdir "$folder/build"
cp "$packages"/{stills,morvantile}_*.deb "$folder/build/"

# The X server writes the number of its display once it is ready.
display_file=$folder/display
setpriv --pdeathsig KILL Xvfb -displayfd 6 -screen 0 1280x800x24 -noreset -nolisten tcp \
    6>"$display_file" 2>/dev/null &
for _ in {1..100}; do
    [[ -s $display_file ]] && break
    sleep 0.1
done
[[ -s $display_file ]] || die "the X server did not start"
DISPLAY=:$(<"$display_file")
export DISPLAY

# look_at_window: waits for the window, checks its size and stores a screenshot.
look_at_window() {
    local window size
    window=$(timeout 1200 xdotool search --sync --onlyvisible --name '^Morvantile$' | head -n 1)
    [[ -n $window ]] || die "no window named Morvantile appeared"
    size=$(xdotool getwindowgeometry "$window" | sed -n 's/ *Geometry: //p')
    [[ $size == 800x600 ]] || die "the window is $size, not 800x600"
    sleep 2
    /usr/bin/python3 -c 'import sys; from PIL import ImageGrab; ImageGrab.grab().save(sys.argv[1])' \
        "$root/build/package/window-$release.png"
    say "The window is there; build/package/window-$release.png shows it."
    touch "$folder/build/window-was-seen"
}

say "== stills on a clean Debian $release"
inside "$folder" /morvantile/scripts/package-checks.sh stills
say "== morvantile on a clean Debian $release"
look_at_window &
looking=$!
if ! inside "$folder" DISPLAY="$DISPLAY" /morvantile/scripts/package-checks.sh morvantile; then
    kill "$looking" 2>/dev/null || true
    die "morvantile did not pass"
fi
wait "$looking"
rm -rf "$folder"
say "Both packages install, run and go without a trace."
