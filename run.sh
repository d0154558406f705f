#!/usr/bin/env bash
# Installs missing packages, builds the release and runs it. Later starts only run it.
#   ./run.sh                     opens the window
#   ./run.sh VIDEO… [OPTION]…    takes pictures from videos: the command stills
#   ./run.sh morvantile-cli …    the older command, which takes one video
set -euo pipefail
root=$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")
source "$root/scripts/setup.sh"

usage() {
    cat >&2 <<'END'
Usage: ./run.sh VIDEO... [OPTION]...

  ./run.sh film.mp4                      ten pictures, evenly spread, beside the video
  ./run.sh film.mp4 -o out --every 5s    one every 5 seconds, into the folder "out"
  ./run.sh --help                        the options
END
}

ensure_build_folder
ensure_packages run
if ! is_configured release; then
    configure release -DMORVANTILE_BUILD_TESTS=OFF
fi
# All programs, without the tests that the build folder may contain as well.
build release app/all stills/all
release_build_folder

# In the plain "C" locale of many containers Qt would not find files with non-ASCII names.
[[ $(locale charmap 2>/dev/null) == UTF-8 ]] || export LC_ALL=C.UTF-8

programs=$root/build/release
if [[ ${1-} == morvantile-cli ]]; then
    shift
    exec "$programs/app/morvantile-cli" "$@"
elif (($#)); then
    exec "$programs/stills/stills" "$@"
elif [[ -x $programs/app/morvantile ]]; then
    exec "$programs/app/morvantile"
else
    usage
fi
