#!/usr/bin/env bash
# Fails if codespell finds a misspelt word; .codespellrc lists the exceptions.
set -euo pipefail
cd -- "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")/.."
codespell
