#!/usr/bin/env bash
# Extracts pictures from all videos of a list with GNU parallel: on this machine, or on several hosts
# with the same folders at the same paths. If it was stopped, run it again to continue.
#   stills-parallel.sh LIST LOG [OPTION OF STILLS]...
#
# LIST has one video per line, or NUL characters between them. LOG is a folder, created if it is
# missing: its parallel.log lists the finished tasks, and its *.json files the result of each picture.
#
#   STILLS_TASKS    number of tasks that the list is divided into (100)
#   STILLS_AT_ONCE  number of tasks that run at once on a host (1, which uses all its cores)
#   STILLS_HOSTS    a file with the hosts, one per line, as named by ssh (only this machine)
#   STILLS          the program (stills)
set -euo pipefail

die() {
    printf 'stills-parallel: %s\n' "$*" >&2
    exit 255
}

(($# >= 2)) || die "usage: stills-parallel.sh LIST LOG [OPTION OF STILLS]..."
[[ -r $1 ]] || die "cannot read the list: $1"
mkdir -p -- "$2"
list=$(realpath -- "$1")
log=$(realpath -- "$2")
shift 2
tasks=${STILLS_TASKS:-100}

# A task is a number: no name of a video, of a folder or of an option passes through parallel, ssh
# or another machine's shell. The file "task" says what to do with the number.
task=$(
    printf '# the list: %s\n' "$(cksum <"$list")"
    printf 'cd -- %q || exit\n' "$PWD"
    printf 'json=%q/$1.$(date +%%s).$HOSTNAME.$$.json\n' "$log"
    printf 'exec %q --files-from %q --shard "$1/%d" --skip-existing --json' \
        "${STILLS:-stills}" "$list" "$tasks"
    (($# == 0)) || printf ' %q' "$@"
    printf ' >"$json"\n'
)
if [[ -e $log/task ]]; then
    [[ $(<"$log/task") == "$task" ]] ||
        die "$log belongs to a run with another list, folder or option; name another folder"
else
    printf '%s\n' "$task" >"$log/task.new"
    mv -- "$log/task.new" "$log/task"
fi

options=(--jobs "${STILLS_AT_ONCE:-1}" --joblog "$log/parallel.log" --resume-failed
    --workdir "$log" --line-buffer)
[[ -z ${STILLS_HOSTS-} ]] || options+=(--sshloginfile "$STILLS_HOSTS" --retries 2)
seq "$tasks" | parallel "${options[@]}" bash ./task
