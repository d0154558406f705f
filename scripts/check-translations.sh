#!/usr/bin/env bash
# Fails if a catalogue lacks a text of the sources, or has one that no longer exists in them.
set -euo pipefail
exec "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")/translations.sh" --check
