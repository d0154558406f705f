#!/usr/bin/env bash
# Runs the program's code with generated inputs and detects crashes, leaks and endless loops.
#   scripts/fuzz.sh MINUTES [HARNESS…]   this many minutes for each of video, player, profiles,
#                                        arguments and metadata, or for the named ones
#   scripts/fuzz.sh --seeds [HARNESS…]   only the stored inputs, in the build with sanitizers
#   scripts/fuzz.sh --thin [HARNESS…]    removes generated inputs that reach nothing new; every run
#                                        begins with all of them, which can take all of its time
# Needs the packages [run] and [fuzz] of packages.txt, and the sample videos of the tests, in
# build/media or the folder named by MORVANTILE_MEDIA. Findings are stored in build/fuzz/findings;
# add a file to fuzz/seeds and a test for each.
set -euo pipefail
root=$(dirname -- "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")")
source "$root/scripts/setup.sh"

media=${MORVANTILE_MEDIA:-$root/build/media}
largest_sample=64k

# seeds_of HARNESS: the stored inputs, one per line.
seeds_of() {
    [[ ! -d $root/fuzz/seeds/$1 ]] || find "$root/fuzz/seeds/$1" -type f
    case $1 in
        video | player) find -L "$media" -maxdepth 1 -type f -size "-$largest_sample" ! -name '.*' ;;
        metadata) find -L "$media" -maxdepth 1 -type f -name '*.jpg' ;;
    esac
}

replay() {
    local name files
    for name in "$@"; do
        mapfile -t files < <(seeds_of "$name" | sort)
        ((${#files[@]})) || die "there are no seeds for $name"
        "$build/fuzz/fuzz_$name" "${files[@]}" >"$build/fuzz/$name.log" 2>&1 ||
            { tail -n 40 "$build/fuzz/$name.log" >&2; die "$name fails"; }
        say "$name: ${#files[@]} inputs"
    done
}

fuzz() {
    local name files corpus dictionary=()
    for name in "$@"; do
        corpus=$build/corpus/$name
        mkdir -p "$corpus" "$build/findings/$name"
        mapfile -t files < <(seeds_of "$name")
        ((${#files[@]} == 0)) || cp -n -- "${files[@]}" "$corpus/"
        dictionary=()
        [[ ! -e $root/fuzz/$name.dict ]] || dictionary=("-dict=$root/fuzz/$name.dict")
        say "== $name: $minutes minutes"
        (
            cd -- "$build/findings/$name"
            # A position may take three seconds, and each input has several.
            TIMEFORMAT="$name: %U s of processor time"
            time "$build/fuzz/fuzz_$name" "$corpus" "${dictionary[@]}" \
                -max_total_time="$((minutes * 60))" -timeout=25 -rss_limit_mb=2500 \
                -max_len=131072 -print_final_stats=1 >"$build/fuzz/$name.log" 2>&1
        ) || {
            tail -n 40 "$build/fuzz/$name.log" >&2
            say "$name: a finding in build/fuzz/findings/$name"
            failed=1
        }
        # INITED tells how many of the inputs were there before.
        grep -h -E 'stat::number_of_executed_units|INITED|DONE' "$build/fuzz/$name.log" >&2 || true
    done
}

thin() {
    local name corpus
    for name in "$@"; do
        corpus=$build/corpus/$name
        [[ -d $corpus ]] || continue
        rm -rf -- "$corpus.thin"
        mkdir -- "$corpus.thin"
        "$build/fuzz/fuzz_$name" -merge=1 -timeout=25 -rss_limit_mb=2500 -max_len=131072 \
            "$corpus.thin" "$corpus" >"$build/fuzz/$name.log" 2>&1 ||
            { tail -n 40 "$build/fuzz/$name.log" >&2; die "$name cannot be thinned"; }
        say "$name: $(find "$corpus" -type f | wc -l) inputs, now $(find "$corpus.thin" -type f | wc -l)"
        rm -rf -- "$corpus"
        mv -- "$corpus.thin" "$corpus"
    done
}

all=(video player profiles arguments metadata)
(($#)) || die "say how many minutes, --seeds or --thin"
minutes=$1
shift
harnesses=("$@")
(($#)) || harnesses=("${all[@]}")
for name in "${harnesses[@]}"; do
    [[ " ${all[*]} " == *" $name "* ]] || die "there is no harness $name: ${all[*]}"
done
failed=0
export QT_QPA_PLATFORM=offscreen
# The last one as in tests/CMakeLists.txt.
export ASAN_OPTIONS=detect_leaks=1:allocator_may_return_null=1:intercept_tls_get_addr=0
export LSAN_OPTIONS=suppressions=$root/tests/support/lsan.supp:print_suppressions=0

if [[ $minutes == --seeds ]]; then
    build=${MORVANTILE_FUZZ_BUILD:-$root/build/asan}
    [[ -e $build/build.ninja ]] ||
        cmake --preset asan -S "$root" -DMORVANTILE_QUICK_BUILD=ON >/dev/null
    ninja -C "$build" "${harnesses[@]/#/fuzz_}" >&2
    replay "${harnesses[@]}"
    exit 0
fi
[[ $minutes == --thin || $minutes =~ ^[1-9][0-9]*$ ]] || die "no number of minutes: $minutes"
build=$root/build/fuzz
cmake -S "$root" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
    -DCMAKE_C_COMPILER=clang -DCMAKE_CXX_COMPILER=clang++ -DMORVANTILE_BUILD_TESTS=OFF \
    -DMORVANTILE_BUILD_FUZZERS=ON \
    -DMORVANTILE_SANITIZE=address,undefined,fuzzer-no-link >/dev/null
ninja -C "$build" "${harnesses[@]/#/fuzz_}" >&2
if [[ $minutes == --thin ]]; then
    thin "${harnesses[@]}"
    exit 0
fi
fuzz "${harnesses[@]}"
exit "$failed"
