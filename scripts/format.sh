#!/usr/bin/env bash
# Formats all C++ sources; with --check only lists unformatted ones, and fails if there are any.
set -euo pipefail
cd -- "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")/.."

mode=(-i)
[[ ${1-} == --check ]] && mode=(--dry-run -Werror)
find . -path './build*' -prune -o -path './.git' -prune -o -name '*.cpp' -print0 -o -name '*.h' -print0 |
    xargs -0 -r clang-format --style=file "${mode[@]}"
