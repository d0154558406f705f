#!/usr/bin/env bash
# Tests the job array of docs/clusters.md on a real Slurm with two nodes on this machine: it must
# make the same pictures as one call of stills, also if tasks are killed, requeued or reach their
# time limit. Reports each check; fails if one fails.
#   scripts/try-slurm.sh [FOLDER_WITH_SAMPLES]      default: build/media
#
# Slurm and munge run in build/slurm, on ports and a socket of their own, as the user who starts
# this script, without systemd; they end with it. If the script itself is killed with SIGKILL,
# running tasks remain and have to be killed as well. No other Slurm on the machine is affected.
set -euo pipefail
root=$(dirname -- "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")")
source "$root/scripts/setup.sh"

readonly CONTROLLER_PORT=26817
readonly FIRST_NODE_PORT=26818
readonly WAIT_TENTHS=900 # for anything that is waited for

folder=$root/build/slurm
media=$(realpath -m -- "${1:-$root/build/media}")
script=$root/docs/clusters/stills-array.sbatch
stills=$root/build/release/stills/stills
videos=$folder/videos
expected=$folder/expected
export SLURM_CONF=$folder/slurm.conf
export STILLS=$stills
failures=0
readonly SERIES=(--every 40ms --format png) # slow enough to be interrupted

# Children of this shell, which ends them in any case.
daemons=()
stop_daemons() {
    local i
    # In reverse order: nodes before their controller, and munge after both.
    for ((i = ${#daemons[@]} - 1; i >= 0; --i)); do
        kill "${daemons[i]}" 2>/dev/null || true
        wait "${daemons[i]}" 2>/dev/null || true
    done
}
end() {
    local status=$?
    trap - EXIT
    scancel --user "$(id -un)" 2>/dev/null || true
    stop_daemons
    exit "$status"
}

# start NAME COMMAND…: runs a daemon in the foreground, with its output in build/slurm/NAME.log. The
# daemon ends if this shell is killed.
start() {
    local name=$1
    shift
    setpriv --pdeathsig TERM "$@" >>"$folder/$name.log" 2>&1 &
    daemons+=("$!")
}

# wait_for WHAT COMMAND…: waits until the command succeeds.
wait_for() {
    local what=$1 i
    shift
    for ((i = 0; i < WAIT_TENTHS; ++i)); do
        "$@" && return
        sleep 0.1
    done
    say "$(squeue --states=all 2>&1; tail -n 5 "$folder"/*.log)"
    die "waited too long for $what"
}

# check WHAT COMMAND…: reports whether the command succeeds.
check() {
    local what=$1
    shift
    if "$@"; then
        say "  ok    $what"
    else
        say "  WRONG $what"
        failures=$((failures + 1))
    fi
}

write_configuration() {
    cat >"$SLURM_CONF" <<END
ClusterName=stills
SlurmctldHost=$(hostname -s)(127.0.0.1)
SlurmctldPort=$CONTROLLER_PORT
SlurmUser=$(id -un)
SlurmdUser=$(id -un)
AuthType=auth/munge
AuthInfo=socket=$folder/munge.socket,cred_expire=5
StateSaveLocation=$folder/state
SlurmctldPidFile=$folder/slurmctld.pid
SlurmdSpoolDir=$folder/spool.%n
SlurmdPidFile=$folder/slurmd.%n.pid
# Control groups are not always available in a container.
ProctrackType=proctrack/linuxproc
TaskPlugin=task/none
JobAcctGatherType=jobacct_gather/none
AccountingStorageType=accounting_storage/none
MpiDefault=none
SelectType=select/cons_tres
SelectTypeParameters=CR_Core_Memory
# Two nodes with two cores each, regardless of the machine.
SlurmdParameters=config_overrides
KillWait=5
ReturnToService=2
NodeName=node1 NodeHostname=$(hostname -s) NodeAddr=127.0.0.1 Port=$FIRST_NODE_PORT CPUs=2 RealMemory=4096
NodeName=node2 NodeHostname=$(hostname -s) NodeAddr=127.0.0.1 Port=$((FIRST_NODE_PORT + 1)) CPUs=2 RealMemory=4096
PartitionName=main Nodes=ALL Default=YES MaxTime=INFINITE State=UP
END
}

nodes_are_idle() { [[ $(sinfo -h -N -o %T 2>/dev/null | sort -u) == idle ]]; }

start_cluster() {
    mkdir -p "$folder/state" "$folder/spool.node1" "$folder/spool.node2"
    head -c 1024 /dev/urandom >"$folder/munge.key"
    chmod 600 "$folder/munge.key"
    write_configuration
    # --force: the project's folder may be writable by others.
    start munged munged --foreground --force --socket "$folder/munge.socket" \
        --key-file "$folder/munge.key" --pid-file "$folder/munged.pid" \
        --seed-file "$folder/munged.seed" --log-file "$folder/munged.log"
    wait_for munged test -S "$folder/munge.socket"
    start slurmctld slurmctld -D
    start slurmd-node1 slurmd -D -N node1
    start slurmd-node2 slurmd -D -N node2
    wait_for "both nodes" nodes_are_idle
}

# Clips that keep a task busy for some seconds, with names that need quoting, two of them equal. In
# an array of four, the second task takes the second video and every fourth from there: "a new line"
# and "clip 3".
make_videos() {
    local i
    mkdir -p "$videos/again"
    for i in 1 2 3 4 5; do
        ln -s "$media/h264_1080p.mp4" "$videos/clip $i.mp4"
    done
    ln -s "$media/two words.mp4" "$videos/"$'a new\nline.mp4'
    ln -s "$media/two words.mp4" "$videos/\"quotes' and \$(dollars).mp4"
    ln -s "$media/h264_gop250.mp4" "$videos/again/clip 1.mp4"
    cd "$folder"
    find videos ! -type d -print0 | LC_ALL=C sort -z >videos.list
    say "One call of stills, to compare with"
    "$stills" --files-from videos.list -o "$expected" "${SERIES[@]}"
}

# submit PICTURES ARRAY: prints the number of the job, which processes $list.
submit() {
    local pictures=$1 array=$2
    sbatch --parsable --array="$array" --cpus-per-task=1 --mem=512M "$script" \
        "${list:-videos.list}" -o "$pictures" "${SERIES[@]}"
}

# show FORMAT JOB: squeue's output for its tasks, one per line.
show() { squeue -h -r --states=all --jobs "$2" --format "$1"; }
states() { show %T "$1" | sort -u; }
is_in_state() { [[ $(states "$1") == "$2" ]]; }
has_ended() { ! states "$1" | grep -qxE 'PENDING|CONFIGURING|RUNNING|COMPLETING|REQUEUED'; }
exit_status() { scontrol show job "$1" | sed -n 's/.*ExitCode=\([0-9]*\):.*/\1/p'; }

same_pictures() { diff -r "$expected" "$1" >&2; }
pictures_of() { find "$1" -name "$2-*.png" 2>/dev/null | wc -l; }
has_begun() { (($(pictures_of "$1" 'clip 3') >= 3)); }
is_half_done() { (($(pictures_of "$1" 'clip 3') < $(pictures_of "$expected" 'clip 3'))); }

# holds_whole_pictures FOLDER: each visible file has its expected content.
holds_whole_pictures() {
    local file
    while IFS= read -r -d '' file; do
        cmp -- "$file" "$expected/${file##*/}" || return
    done < <(find "$1" -type f ! -name '.*' -print0)
}

try_array() {
    local pictures=$folder/plain job
    say "An array of four, numbered from 0"
    job=$(submit "$pictures" 0-3)
    wait_for "job $job" has_ended "$job"
    check "all tasks are completed" is_in_state "$job" COMPLETED
    check "both nodes took part" test "$(show %N "$job" | sort -u | wc -l)" = 2
    check "same files, same bytes as one call" same_pictures "$pictures"
}

# kill_stills TASK: kills only the program, as the system does when memory runs out.
kill_stills() {
    local processes
    mapfile -t processes < <(pgrep -u "$(id -u)" -f -- "^$stills .*--shard 2/4 .*-o $folder/crashed ")
    ((${#processes[@]} == 1)) || die "there are ${#processes[@]} programs of task $1"
    kill -KILL "${processes[0]}"
}

# try_interruption TEXT PICTURES STATE COMMAND…: while the second task is working, runs the command
# with the task as its last argument. The task must then have that state, or be pending again; a
# failed one is requeued.
try_interruption() {
    local text=$1 pictures=$folder/$2 state=$3 job task
    shift 3
    say "$text"
    job=$(submit "$pictures" 1-4)
    task=${job}_2
    wait_for "the first pictures" has_begun "$pictures"
    "$@" "$task"
    wait_for "the end of task 2" is_in_state "$task" "$state"
    check "it ended in the middle" is_half_done "$pictures"
    check "what it left is whole" holds_whole_pictures "$pictures"
    [[ $state == PENDING ]] || scontrol requeue "$task"
    wait_for "job $job" has_ended "$job"
    check "all tasks are completed" is_in_state "$job" COMPLETED
    check "task 2 ran twice" test "$(scontrol show job "$task" | grep -c 'Restarts=1 ')" = 1
    find "$pictures" -name '.morvantile-*.part' -delete
    check "nothing is lost or doubled" same_pictures "$pictures"
}

try_failure() {
    local pictures=$folder/broken job
    say "A video that cannot be read"
    printf 'no video' >"$folder/broken.mp4"
    (cat "$folder/videos.list" && printf '%s\0' "$folder/broken.mp4") >"$folder/broken.list"
    job=$(list=broken.list submit "$pictures" 1-3)
    wait_for "job $job" has_ended "$job"
    check "its task, the third, has failed" is_in_state "${job}_3" FAILED
    check "with status 1" test "$(exit_status "${job}_3")" = 1
    check "the others have not" is_in_state "${job}_1,${job}_2" COMPLETED
    check "nothing else is missing" same_pictures "$pictures"
}

try_part() {
    local pictures=$folder/part job
    say "Some tasks of an array"
    job=$(submit "$pictures" 1,2,4)
    wait_for "job $job" has_ended "$job"
    check "they are refused unless the whole number is said" test "$(exit_status "${job}_4")" = 2
    check "and have done nothing" test ! -e "$pictures"
    for tasks in 1,2,4 3; do
        job=$(STILLS_TASKS=4 submit "$pictures" "$tasks")
        wait_for "job $job" has_ended "$job"
        check "tasks $tasks are completed" is_in_state "$job" COMPLETED
    done
    check "all of them make all pictures" same_pictures "$pictures"
}

[[ -x $stills ]] || die "build it first: ninja -C build/release stills"
[[ -e $media/h264_1080p.mp4 ]] ||
    die "there are no sample videos in $media: tests/media/make_samples.sh makes them"
mkdir -p "$root/build"
exec 8>"$root/build/slurm.lock"
flock -n 8 || die "another run is busy"
ensure_packages slurm
rm -rf "$folder"
mkdir -p "$folder/stills-log"
trap end EXIT
trap 'exit 130' INT
trap 'exit 143' TERM HUP
start_cluster
make_videos
try_array
try_interruption "A task that is killed" killed CANCELLED scancel --signal=KILL --full
try_interruption "A task whose program dies" crashed FAILED kill_stills
try_interruption "A task that is requeued at work" requeued PENDING scontrol requeue
try_interruption "A task whose time is up" late PENDING scancel --signal=USR1 --batch
try_failure
try_part
if ((failures > 0)); then
    die "$failures checks were wrong; $folder has what was left"
fi
say "All is as it should be."
