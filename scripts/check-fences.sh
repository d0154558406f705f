#!/usr/bin/env bash
# Fails if an include violates the order of the folders, or uses a library that is fenced into
# another folder, and if FFmpeg's version is tested outside the one header for that. The build
# separates the folders as well, as far as its targets are linked in this order. It cannot detect
# headers that every compiler finds, such as FFmpeg's on Debian, nor includes that bypass the
# targets' include folders.
set -euo pipefail
cd -- "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")/.."

status=0
complain() {
    printf '%s\n%s\n' "$1" "$2" >&2
    status=1
}

# includes_of PATTERN FOLDER…: the lines "file:line:text" with matching includes in these folders, of
# which some may not exist.
includes_of() {
    local pattern=$1
    shift
    find "$@" \( -name '*.cpp' -o -name '*.h' \) -exec \
        grep -nHE "^[[:space:]]*#[[:space:]]*include[[:space:]]*[<\"]($pattern)" {} + 2>/dev/null || true
}

# not_in_folders FOLDER…: drops lines of files in these folders.
not_in_folders() { grep -vE "^($(IFS='|' && printf '%s' "$*"))/" || true; }

readonly FOLDERS=(product qtav video profiles utils imaging series batch ui app stills)
ours="$(IFS='|' && printf '%s' "${FOLDERS[*]}")"
readonly OURS="($ours)/"

# layer FOLDER NAME…: files in FOLDER may include only headers that start with one of the names.
# Layers inside another one come first.
checked=(none)
layer() {
    local folder=$1 found
    shift
    found=$(includes_of "$OURS" "$folder" | not_in_folders "${checked[@]}" |
        grep -vE "[<\"]($(IFS='|' && printf '%s' "$*"))" || true)
    [[ -z $found ]] || complain "$folder may include only: $*" "$found"
    checked+=("$folder")
}

# fence LIBRARY HEADERS FOLDER…: only these folders may include headers that match HEADERS.
fence() {
    local library=$1 headers=$2 found
    shift 2
    found=$(includes_of "$headers" "${FOLDERS[@]}" tests bench | not_in_folders "$@")
    [[ -z $found ]] || complain "$library may be included only in: $*" "$found"
}

# only_in FILE PATTERN WHAT: no other source contains words that match PATTERN.
only_in() {
    local file=$1 pattern=$2 what=$3 found
    found=$(find "${FOLDERS[@]}" tests bench \( -name '*.cpp' -o -name '*.h' \) ! -path "$file" \
        -exec grep -nHwE "$pattern" {} + || true)
    [[ -z $found ]] || complain "$what only in: $file" "$found"
}

layer product product/
layer qtav qtav/
layer video video/ utils/CallQueue.h
layer profiles profiles/
layer utils utils/
layer imaging imaging/ profiles/ utils/ product/
layer series series/ imaging/
layer ui/batch batch/ ui/ video/ profiles/ imaging/
layer batch batch/ series/ video/ profiles/ imaging/ utils/CallQueue.h
layer ui/mainwindow ui/ batch/ series/ video/ profiles/ imaging/ product/ utils/CallQueue.h
layer ui ui/ profiles/ imaging/ product/ utils/CallQueue.h
layer stills stills/ series/ imaging/ profiles/ product/ app/MemoryPolicy.h \
    app/RuntimeFolder.h app/StandardStreams.h
# app/ is above all others.

# Only headers generated for the including file may be included without a folder, and none with `..`.
found=$(includes_of '([^/"]+\.h"|\.\.?/)' "${FOLDERS[@]}" tests bench | grep -vE '"ui_[^/]*"' || true)
[[ -z $found ]] || complain "includes are to be written from the root" "$found"

# The benchmarks call the library directly for comparison; the tests of qtav/ use it to simulate other
# machines.
fence FFmpeg 'lib(av|sw)[a-z]*/' qtav tests/qtav bench/bare
fence QtAV 'QtAV' qtav video imaging series batch ui app stills tests bench
fence OpenCV 'opencv2/' imaging tests/imaging bench
fence Exiv2 'exiv2/' imaging tests/imaging

only_in qtav/src/FFmpegCompat.h \
    '(LIB(AV|SW)[A-Z]+_VERSION(_[A-Z]+)?|AV_VERSION_INT|FF_API_[A-Z0-9_]+|(av|sw)[a-z]+_version)' \
    "FFmpeg's version may be tested"
exit "$status"
