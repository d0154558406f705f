#!/usr/bin/env bash
# Fails where codespell knows a word as misspelt; .codespellrc says which words are meant so.
set -euo pipefail
cd -- "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")/.."
codespell
