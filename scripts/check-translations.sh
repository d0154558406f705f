#!/usr/bin/env bash
# Fails where a catalogue lacks a text of the sources, or has one that they do not have any more.
set -euo pipefail
exec "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")/translations.sh" --check
