#!/usr/bin/env bash
# check_includes.sh COMPILER OPTIONS HEADER… -- HEADER…
# With the options in the file OPTIONS, a file that includes one of the first headers must compile;
# a file that includes one of the others must not, because the compiler finds no such header.
set -euo pipefail
export LC_ALL=C

compiler=$1
options=$2
shift 2

compile() { "$compiler" "@$options" -std=c++17 -fPIC -fsyntax-only -x c++ - <<<"#include \"$1\"" 2>&1; }

is_said_to_be_missing() {
    grep -qF -e "error: $1: No such file or directory" -e "error: '$1' file not found"
}

status=0
must_be_found=true
for header; do
    if [[ $header == -- ]]; then
        must_be_found=false
    elif output=$(compile "$header"); then
        if ! $must_be_found; then
            echo "$header: is found, but must not be"
            status=1
        fi
    elif $must_be_found || ! is_said_to_be_missing "$header" <<<"$output"; then
        printf '%s: does not compile\n%s\n' "$header" "$output"
        status=1
    fi
done
exit "$status"
