#!/usr/bin/env bash
# Installs what is missing, builds the release and runs it. A later start only runs it.
#   ./run.sh                     opens the window
#   ./run.sh VIDEO [FOLDER] …    extracts images on the command line
set -euo pipefail
root=$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")
source "$root/scripts/setup.sh"

usage() {
    cat >&2 <<'END'
Usage: ./run.sh VIDEO [FOLDER] [OPTION]…

  ./run.sh film.mp4                      an image every 5 seconds, beside the video
  ./run.sh film.mp4 stills --count 12    twelve, evenly spread, into the existing folder "stills"
  ./run.sh --help                        all options
END
}

ensure_build_folder
ensure_packages run
if ! is_configured release; then
    configure release -DMORVANTILE_BUILD_TESTS=OFF
fi
# All programs of the folder app/, without the tests that the build folder may hold as well.
build release app/all
release_build_folder

# In the bare "C" locale of many a container Qt would not find files with names beyond ASCII.
[[ $(locale charmap 2>/dev/null) == UTF-8 ]] || export LC_ALL=C.UTF-8

programs=$root/build/release/app
if (($#)); then
    exec "$programs/morvantile-cli" "$@"
elif [[ -x $programs/morvantile ]]; then
    exec "$programs/morvantile"
else
    usage
fi
