#!/usr/bin/env bash
# The part of scripts/try-package.sh that runs inside the clean system: installs the package from
# /morvantile/build, runs its programs as an ordinary user, purges it and compares the system with
# its state before.
#   package-checks.sh stills|morvantile
set -euo pipefail

readonly SAMPLE=/morvantile/samples/sunrise.mp4
# Maximum number of packages that stills may bring to a minimal system. On Debian 12 FFmpeg with its
# filters and Qt Gui bring 200, on Debian 13 they bring 210; OpenCV, Exiv2 and the image plugins
# bring the rest.
case $(. /etc/os-release && printf '%s\n' "$VERSION_ID") in
12) readonly LARGEST_CLOSURE=215 ;;
*) readonly LARGEST_CLOSURE=230 ;;
esac
work=$(mktemp -d)
chown 1000:1000 "$work"

die() {
    printf 'error: %s\n' "$*" >&2
    exit 1
}

quietly() { "$@" >"$work.log" 2>&1 || { cat "$work.log" >&2 && die "failed: $*"; }; }

# The prefix of commands that run without privileges, with an empty home folder.
readonly AS_USER=(setpriv --reuid 1000 --regid 1000 --clear-groups
    env HOME="$work/home" XDG_RUNTIME_DIR="$work/run")

# listing: all files of the system except those that apt, debconf and the linker manage.
listing() {
    find / \( -path /proc -o -path /sys -o -path /dev -o -path /tmp -o -path /morvantile \
        -o -path /var/cache/apt -o -path /var/cache/debconf -o -path /var/cache/ldconfig \
        -o -path /var/lib/apt/lists -o -path /var/log \) -prune -o -print |
        sort
}

installed() { dpkg-query -W -f='${Package} ${db:Status-Status}\n' | sort; }

# install PACKAGE: without its recommendations; $work/new lists the packages that were added.
install() {
    installed >"$work/packages.before"
    quietly apt-get -q install -y --no-install-recommends "/morvantile/build/$1"_*.deb
    installed >"$work/packages.after"
    comm -13 "$work/packages.before" "$work/packages.after" | awk '{ print $1 }' >"$work/new"
    printf '%s brought %d packages.\n' "$1" "$(wc -l <"$work/new")"
}

# purge PACKAGE: together with the packages that came with it.
purge() {
    quietly apt-get -q purge -y --autoremove -o APT::AutoRemove::RecommendsImportant=false \
        -o APT::AutoRemove::SuggestsImportant=false "$1"
    installed | diff "$work/packages.before" - || die "packages are left behind"
    listing | diff "$work/files.before" - >"$work/files.diff" || true
    if [[ -s $work/files.diff ]]; then
        cat "$work/files.diff" >&2
        die "purging $1 left other files behind than before"
    fi
    ! grep -rli morvantile /etc /var/lib --exclude-dir=lists --exclude='*-old' 2>/dev/null ||
        die "something still names the package"
    printf '%s is gone without a trace.\n' "$1"
}

check_stills() {
    ((($(wc -l <"$work/new")) <= LARGEST_CLOSURE)) || die "that is more than $LARGEST_CLOSURE"
    ! grep -E '^libqt5(widgets|svg|opengl|multimedia|quick)' "$work/new" ||
        die "a command needs no library of the desktop"
    local version format
    version=$(dpkg-query -W -f='${Version}' stills)
    version=${version%~*}
    [[ $("${AS_USER[@]}" stills --version) == "stills $version" ]] || die "stills has another version"
    [[ $("${AS_USER[@]}" morvantile-cli --version) == "Morvantile $version" ]] ||
        die "morvantile-cli has another version"
    for format in jpg png bmp tif webp; do
        "${AS_USER[@]}" stills "$SAMPLE" --count 3 --format "$format" -o "$work/$format" --quiet
        [[ $(find "$work/$format" -name "sunrise-*.$format" | wc -l) == 3 ]] ||
            die "not three pictures of the type $format"
    done
    # The times in a contact sheet need a font.
    "${AS_USER[@]}" stills "$SAMPLE" --count 3 --sheet -o "$work/sheet" --quiet
    [[ -s $work/sheet/sunrise-sheet.jpg ]] || die "no contact sheet"
    [[ -s $(fc-match -f '%{file}' sans) ]] || die "there is no font"
    # FFmpeg's filters are loaded on first use.
    "${AS_USER[@]}" LD_DEBUG=files stills "$SAMPLE" --count 1 --deinterlace on -o "$work/whole" \
        >"$work/loaded" 2>&1
    grep -q 'calling init:.*libavfilter' "$work/loaded" || die "FFmpeg's filters were not loaded"
    "${AS_USER[@]}" mkdir "$work/older"
    "${AS_USER[@]}" morvantile-cli "$SAMPLE" "$work/older" --count 2
    [[ $(find "$work/older" -name '*.jpeg' | wc -l) == 2 ]] || die "not two pictures"
}

check_morvantile() {
    local pid library
    "${AS_USER[@]}" QT_LOGGING_RULES=default.debug=false morvantile >"$work/log" 2>&1 &
    pid=$!
    # try-package.sh watches the X server and reports it.
    for _ in {1..600}; do
        [[ -e /morvantile/build/window-was-seen ]] && break
        sleep 0.1
    done
    [[ -e /morvantile/build/window-was-seen ]] || { cat "$work/log" >&2 && die "no window"; }
    # The libraries for the icons are loaded by name.
    for library in libQt5Svg libqsvgicon; do
        grep -q "$library" "/proc/$pid/maps" || die "the window did not load $library"
    done
    kill "$pid"
    wait "$pid" 2>/dev/null || true
    [[ ! -s $work/log ]] || { cat "$work/log" >&2 && die "the window complained"; }
    [[ -s /usr/share/morvantile/user-guide/user-guide.html ]] || die "the guide is missing"
    [[ -s /usr/share/doc/morvantile/user-guide/user-guide.html ]] ||
        die "the guide is not where documents are"
}

quietly apt-get -q update
mkdir -p "$work"/{home,run}
chown 1000:1000 "$work"/{home,run}
chmod 700 "$work/run"
listing >"$work/files.before"
install "$1"
"check_$1"
for page in /usr/share/man/man1/*; do
    [[ -s $page ]] || die "the manual page $page is empty or leads nowhere"
done
purge "$1"
