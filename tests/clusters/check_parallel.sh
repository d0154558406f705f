#!/usr/bin/env bash
# Runs stills-parallel.sh on videos with names that need quoting, completely, in parts and on hosts,
# and compares with one call of stills: the same files, the same bytes.
#   check_parallel.sh SCRIPT STILLS
set -euo pipefail
script=$1
export STILLS=$2 STILLS_TASKS=4
media=${MORVANTILE_MEDIA:?must be the folder of the sample videos}

if ! command -v parallel >/dev/null; then
    echo "skipped: GNU parallel is not installed" >&2
    exit 77
fi

die() {
    printf 'check_parallel: %s\n' "$*" >&2
    exit 1
}

folder=$(mktemp -d)
# descendants PROCESS: its number and those of its descendants, parents first.
descendants() {
    local child
    printf '%s\n' "$1"
    for child in $(ps -o pid= --ppid "$1"); do
        descendants "$child"
    done
}

run='' # the process of a run that is to be killed
# Parents first, because parallel would start another task when it sees one die.
kill_run() {
    local processes
    mapfile -t processes < <(descendants "$run")
    kill -KILL "${processes[@]}" 2>/dev/null || true
    wait "$run" 2>/dev/null || true
    run=''
}
end() {
    [[ -z $run ]] || kill_run
    rm -rf -- "$folder"
}
trap end EXIT
# The folder's own name goes through as much as those of the videos.
work=$folder/$'it\'s "a" $(folder)\nof `videos`'
mkdir -p -- "$work/again"
cd -- "$work"
export HOME=$folder # where parallel keeps its own files

readonly SERIES=(--every 40ms) # enough of them to be interrupted
for number in 1 2 3; do
    cp -- "$media/h264_1080p.mp4" "clip $number.mp4"
done
cp -- "$media/single ' and double \" quotes.mp4" .
cp -- "$media/-dash first.mp4" .
cp -- "$media/two words.mp4" $'new\nline.mp4'
# shellcheck disable=SC2016 # no shell is to read it
cp -- "$media/two words.mp4" '$(touch gone) *;&|.mp4'
cp -- "$media/h264_gop250.mp4" 'again/clip 1.mp4' # another video of the same name
find . -name '*.mp4' -print0 | LC_ALL=C sort -z >list
"$STILLS" --quiet --files-from list -o expected "${SERIES[@]}"

# expect_all FOLDER WHEN: it contains exactly what one call makes.
expect_all() {
    find "$1" -name '.morvantile-*.part' -delete # of a call that was killed
    diff -r expected "$1" >&2 || die "not the same pictures $2"
}

all_pictures_come() {
    bash "$script" list log -o out "${SERIES[@]}" || die "a whole run fails"
    expect_all out "of a whole run"
    local lines
    lines=$(cat log/*.json | grep -c '"type":"image"')
    ((lines == $(find expected -type f | wc -l))) || die "$lines lines tell of the pictures"
}

finished_tasks_are_not_run_again() {
    local before
    before=$(cat log/parallel.log)
    bash "$script" list log -o out "${SERIES[@]}" || die "a second run fails"
    [[ $(cat log/parallel.log) == "$before" ]] || die "a second run does tasks again"
}

another_list_is_refused() {
    local status=0
    bash "$script" list log -o elsewhere "${SERIES[@]}" 2>/dev/null || status=$?
    ((status == 255)) || die "other options give status $status"
    [[ ! -e elsewhere ]] || die "other options are used"
}

failed_tasks_are_run_again() {
    local status=0
    cp list longer
    printf 'no video' >broken.mp4
    printf '%s\0' ./broken.mp4 >>longer
    bash "$script" longer failed -o repaired "${SERIES[@]}" 2>/dev/null || status=$?
    ((status == 1)) || die "one failed task gives status $status"
    expect_all repaired "beside a broken video"
    cp -- "$media/two words.mp4" broken.mp4
    bash "$script" longer failed -o repaired "${SERIES[@]}" || die "a repaired video fails"
    local tasks
    tasks=$(($(wc -l <failed/parallel.log) - 1))
    ((tasks == STILLS_TASKS + 1)) || die "$tasks tasks ran, not one more"
    [[ -n $(find repaired -name 'broken-*') ]] || die "a repaired video gives nothing"
}

killed_run_goes_on() {
    bash "$script" list cut -o killed "${SERIES[@]}" 2>/dev/null &
    run=$!
    local count=0
    while ((count < 5)); do
        kill -0 "$run" 2>/dev/null || die "the run ended before it could be killed"
        sleep 0.02
        count=$(find . -path './killed/*.jpg' | wc -l)
    done
    kill_run
    local file
    count=0
    while IFS= read -r -d '' file; do
        cmp -- "$file" "expected/${file##*/}" >&2 || die "a killed run leaves a picture that is not whole"
        count=$((count + 1))
    done < <(find killed -type f ! -name '.*' -print0)
    ((count < $(find expected -type f | wc -l))) || die "the run was not killed in the middle"
    bash "$script" list cut -o killed "${SERIES[@]}" || die "a run after a kill fails"
    expect_all killed "after a kill"
}

# Replaces ssh by a program that passes the command to a shell of this machine, and sets SHELL as a
# login does.
hosts_share_the_work() {
    cat >"$folder/ssh" <<'END'
#!/bin/sh
while case $1 in -*) true ;; *) false ;; esac do shift; done
shift
[ "$1" != -- ] || shift
SHELL=/bin/sh exec sh -c "$*"
END
    chmod +x "$folder/ssh"
    printf '1/first\n1/second\n' >hosts
    PARALLEL_SSH=$folder/ssh STILLS_HOSTS=hosts bash "$script" list far -o shared "${SERIES[@]}" ||
        die "a run on hosts fails"
    expect_all shared "of two hosts"
    (($(cut -f 2 far/parallel.log | sort -u | grep -cx 'first\|second') == 2)) ||
        die "one host did everything"
}

all_pictures_come
finished_tasks_are_not_run_again
another_list_is_refused
failed_tasks_are_run_again
killed_run_goes_on
hosts_share_the_work
[[ ! -e gone ]] || die "a shell read the name of a video"
