#!/usr/bin/env bash
# Makes the sample videos that the tests read.
#
#   make_samples.sh OUTDIR [NAME…]   makes what is missing or out of date (all, or the named ones)
#   make_samples.sh --list           prints the names
#
# A sample is made again only when its recipe, the tools or ffmpeg changed. OUTDIR also gets
# .keyframes/NAME, the sample's key frames, one number a line.
set -euo pipefail

MEDIA_DIR=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
readonly MEDIA_DIR

usage() {
    sed -n '2,/^set/{/^#/s/^# \{0,1\}//p}' "${BASH_SOURCE[0]}" >&2
    exit 2
}

# make_all NAME…: makes the samples in order, JOBS at a time. One made from another waits for it.
make_all() {
    local name stamp running=0
    local -A busy=()
    for name in "$@"; do
        stamp=$(stamp_of "$name")
        is_current "$name" "$stamp" && continue
        if [[ -n ${NEEDS[$name]:-} && -n ${busy[${NEEDS[$name]}]:-} ]]; then
            finish_running 0
            busy=()
        fi
        finish_running $((JOBS - 1))
        start "$name" "$stamp" &
        busy[$name]=1
        running=$((running + 1))
    done
    finish_running 0
}

# start NAME STAMP: one sample in a process of its own, which says what failed.
start() {
    STARTED=$1
    trap '(($? == 0)) || echo "make_samples: $STARTED failed" >&2' EXIT
    make_one "$1" "$2"
}

# finish_running COUNT: waits until no more than COUNT samples of make_all are in work.
finish_running() {
    while ((running > $1)); do
        wait -n || {
            wait
            fail "stopped at the first failure"
        }
        running=$((running - 1))
    done
}

main() {
    (($# > 0)) || usage
    case $1 in
    --list) OUT=. ;;
    -*) usage ;;
    *)
        mkdir -p "$1"/{.stamps,.keyframes,.work}
        OUT=$(cd "$1" && pwd)
        shift
        ;;
    esac
    readonly OUT
    # shellcheck source=lib.sh
    . "$MEDIA_DIR/lib.sh"
    local RECIPES_FILE
    for RECIPES_FILE in "$MEDIA_DIR"/recipes/*.sh; do
        # shellcheck source=/dev/null
        . "$RECIPES_FILE"
    done
    if [[ ${1:-} == --list ]]; then
        printf '%s\n' "${NAMES[@]}"
        return
    fi
    # Several builds may share the folder; the second one finds the first one's work.
    exec 9>"$OUT/.lock"
    flock 9
    TOOLCHAIN=$(toolchain)
    readonly TOOLCHAIN
    local name
    for name in "$@"; do
        [[ -n ${RECIPES[$name]:-} ]] || fail "no sample is named $name"
    done
    (($# > 0)) || set -- "${NAMES[@]}"
    make_all "$@"
}

main "$@"
