#!/usr/bin/env bash
# Fails where a folder includes a library that another folder fences in.
set -euo pipefail
cd -- "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")/.."

status=0
# fence LIBRARY HEADERS FOLDER…: only these folders may include headers that match HEADERS.
fence() {
    local library=$1 headers=$2 allowed
    shift 2
    allowed=$(IFS='|' && printf '%s' "$*")
    local found
    found=$(find . -path './build*' -prune -o -path './.git' -prune -o \
        \( -name '*.cpp' -o -name '*.h' \) -print | grep -vE "^\./($allowed)/" |
        xargs -r -d '\n' grep -nE "^[[:space:]]*#[[:space:]]*include[[:space:]]*[<\"]($headers)" || true)
    if [[ -n $found ]]; then
        printf '%s may be included only in: %s\n%s\n' "$library" "$*" "$found" >&2
        status=1
    fi
}

fence FFmpeg 'lib(av|sw)[a-z]*/' qtav
fence OpenCV 'opencv2/' imaging utils tests/imaging tests/utils bench
exit "$status"
