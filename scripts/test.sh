#!/usr/bin/env bash
# Builds and runs every test: ./dev test [PRESET [CTEST ARGUMENTS]] (release, quick, sanitize).
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

preset="${1:-release}"
scripts/build.sh "$preset"

# The browser is part of the whole; tests chosen by arguments are CTest's, and sanitizers are slow.
in_browser() {
    [[ $# -gt 1 || "$preset" == sanitize ]] || scripts/browser.sh "$preset"
}

if ctest --preset "$preset" --parallel "$(nproc)" "${@:2}" && in_browser "$@"; then
    printf '\nAll tests passed (%s); results: build/%s/test-results.xml\n' "$preset" "$preset"
else
    printf '\nTESTS FAILED (%s); results: build/%s/test-results.xml\n' "$preset" "$preset" >&2
    exit 1
fi
