#!/usr/bin/env bash
# Fails unless clusters.md quotes each script in clusters/ verbatim, and bash accepts them.
#   check_document.sh DOCS
set -euo pipefail
cd -- "$1"

status=0
complain() {
    printf '%s\n' "$*" >&2
    status=1
}

# quoted FILE: the block of code below the line "<!-- FILE -->".
quoted() {
    awk -v mark="<!-- $1 -->" '
        $0 == mark { marked = 1; next }
        marked && /^```/ { if (inside) exit; inside = 1; next }
        inside' clusters.md
}

count=0
for script in clusters/*; do
    count=$((count + 1))
    bash -n "$script" || complain "$script: bash does not understand it"
    [[ -x $script ]] || complain "$script: is not executable"
    diff -u --label "$script" --label "$script as clusters.md quotes it" \
        "$script" <(quoted "$script") >&2 || complain "$script: clusters.md quotes something else"
done
((count == 2)) || complain "there are $count scripts in clusters/, not 2"
exit "$status"
