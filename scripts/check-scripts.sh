#!/usr/bin/env bash
# Fails if shellcheck finds something in a script; .shellcheckrc lists the disabled checks.
set -euo pipefail
cd -- "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")/.."

mapfile -t scripts < <(
    find . \( -path ./build -o -path ./out -o -path ./.git \) -prune \
        -o \( -name '*.sh' -o -name '*.sbatch' -o -path './.ci/*' \) -type f -print \
        -o -path './packaging/completions/bash/*' -print | sort)
((${#scripts[@]} > 20)) || {
    printf 'Only %s scripts were found.\n' "${#scripts[@]}" >&2
    exit 1
}
shellcheck --shell=bash "${scripts[@]}"
