#!/usr/bin/env bash
# Installs missing packages, then builds and runs all tests: of the sources themselves, under the
# sanitizers and in release. Ends with CTest's summary; fails if anything failed. Tests that run
# under address sanitizer run in release only if the optimiser could matter to them.
#   ./test.sh                              everything
#   ./test.sh PRESET…                      only these of release, asan, tsan and qt6 (which is
#                                          release with Qt 6, and is not among everything)
#   ./test.sh --without-desktop [PRESET…]  without the tests that need a desktop
set -euo pipefail
root=$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")
source "$root/scripts/setup.sh"

sections=(run test desktop)
desktop_tests=ON
if [[ ${1-} == --without-desktop ]]; then
    shift
    sections=(run test)
    desktop_tests=OFF
fi
presets=("$@")
(($#)) || presets=(release asan tsan)
for preset in "${presets[@]}"; do
    [[ $preset == @(release|asan|tsan|qt6) ]] ||
        die "no such preset: $preset (release, asan, tsan or qt6)"
    [[ $preset != qt6 ]] || sections+=(qt6)
done

all_tests=ON
[[ " ${presets[*]} " == *' asan '* ]] && all_tests=OFF

ensure_build_folder
ensure_packages "${sections[@]}"

make_media=ON
for preset in "${presets[@]}"; do
    say "== Building: $preset"
    # Without precompiled headers a file has to include what it uses, which the shorter run checks.
    # The benchmarks are compiled once, so that they follow what they measure; no test runs them.
    benchmarks=OFF
    [[ $preset != release ]] || benchmarks=ON
    configure "$preset" -DMORVANTILE_BUILD_TESTS=ON -DMORVANTILE_WERROR=ON \
        -DMORVANTILE_BUILD_BENCHMARKS=$benchmarks \
        -DMORVANTILE_DESKTOP_TESTS=$desktop_tests -DMORVANTILE_QUICK_BUILD=$desktop_tests \
        -DMORVANTILE_ALL_TESTS=$all_tests -DMORVANTILE_MAKE_MEDIA=$make_media
    make_media=OFF
    # Thread sanitizer runs few of the tests, which need few of the libraries.
    if [[ $preset == tsan ]]; then build tsan tests/all; else build "$preset" all; fi
done

# One CTest run over all build folders, so that there is a single summary.
suite=$root/build/suite
mkdir -p "$suite"
{
    printf 'add_test(source_format "%s/scripts/format.sh" --check)\n' "$root"
    printf 'add_test(source_style "%s/scripts/check-style.py")\n' "$root"
    for check in fences release scripts spelling translations; do
        printf 'add_test(source_%s "%s/scripts/check-%s.sh")\n' "$check" "$root" "$check"
    done
    printf "subdirs(\"$root/build/%s\")\n" "${presets[@]}"
} >"$suite/CTestTestfile.cmake"
release_build_folder
ctest --test-dir "$suite" --output-on-failure --no-tests=error --timeout 900 \
    -j $(($(nproc) * 3)) # many of them wait more than they compute
