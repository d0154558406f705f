#!/usr/bin/env bash
# Fails where an include goes against the order of the folders, or reaches for a library that
# another folder fences in, and where FFmpeg's version is tested outside the one header for that.
# The build keeps the folders apart as well, as far as its targets are linked in this order; it
# cannot see a header that every compiler finds, as FFmpeg's on Debian, nor an include that goes
# around the targets' include folders.
set -euo pipefail
cd -- "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")/.."

status=0
complain() {
    printf '%s\n%s\n' "$1" "$2" >&2
    status=1
}

# includes_of PATTERN FOLDER…: the lines "file:line:text" that include what matches, in what there
# is of these folders.
includes_of() {
    local pattern=$1
    shift
    find "$@" \( -name '*.cpp' -o -name '*.h' \) -exec \
        grep -nHE "^[[:space:]]*#[[:space:]]*include[[:space:]]*[<\"]($pattern)" {} + 2>/dev/null || true
}

# not_in_folders FOLDER…: keeps the others.
not_in_folders() { grep -vE "^($(IFS='|' && printf '%s' "$*"))/" || true; }

readonly FOLDERS=(product qtav video profiles utils imaging series batch ui app stills)
ours="$(IFS='|' && printf '%s' "${FOLDERS[*]}")"
readonly OURS="($ours)/"

# layer FOLDER NAME…: what is in FOLDER may include only headers that start with one of the names.
# Layers that stand inside another one come first.
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

# only_in FILE PATTERN WHAT: no other source has words that match PATTERN.
only_in() {
    local file=$1 pattern=$2 what=$3 found
    found=$(find "${FOLDERS[@]}" tests bench \( -name '*.cpp' -o -name '*.h' \) ! -path "$file" \
        -exec grep -nHwE "$pattern" {} + || true)
    [[ -z $found ]] || complain "$what only in: $file" "$found"
}

layer product product/
layer qtav qtav/
layer video video/
layer profiles profiles/
layer utils utils/
layer imaging imaging/ profiles/ utils/ product/
layer series series/ imaging/
layer ui/batch batch/ ui/ video/ profiles/ imaging/
layer batch batch/ series/ video/ profiles/ imaging/
layer ui/mainwindow ui/ batch/ series/ video/ profiles/ imaging/ product/
layer ui ui/ profiles/ imaging/ product/
layer stills stills/ series/ imaging/ profiles/ product/ app/MemoryPolicy.h \
    app/RuntimeFolder.h
# app/ stands above all others.

# Without a folder only what a tool makes for the including file alone, with `..` nothing.
found=$(includes_of '([^/"]+\.h"|\.\.?/)' "${FOLDERS[@]}" tests bench | grep -vE '"ui_[^/]*"' || true)
[[ -z $found ]] || complain "includes are to be written from the root" "$found"

# The benchmarks call the bare library for comparison; its tests let it see other machines.
fence FFmpeg 'lib(av|sw)[a-z]*/' qtav tests/qtav bench/bare
fence QtAV 'QtAV' qtav video imaging series batch ui app stills tests bench
fence OpenCV 'opencv2/' imaging tests/imaging bench
fence Exiv2 'exiv2/' imaging tests/imaging

only_in qtav/src/FFmpegCompat.h \
    '(LIB(AV|SW)[A-Z]+_VERSION(_[A-Z]+)?|AV_VERSION_INT|FF_API_[A-Z0-9_]+|(av|sw)[a-z]+_version)' \
    "FFmpeg's version may be tested"
exit "$status"
