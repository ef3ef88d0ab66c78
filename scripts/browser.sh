#!/usr/bin/env bash
# Checks the page's scripts and tests the phone in a real browser: ./dev browser [PRESET].
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

preset="${1:-release}"
scripts/install.sh build browser
scripts/build.sh "$preset" host Wentra
if [[ tests/browser/package-lock.json -nt tests/browser/node_modules/.package-lock.json ]]; then
    printf 'Fetching what the browser tests need\n'
    npm ci --prefix tests/browser --no-audit --no-fund --loglevel=error
fi
printf '== the page'"'"'s scripts\n'
tests/browser/node_modules/.bin/tsc -p desktop/viewer/page/jsconfig.json
printf '== the page in a browser\n'
WENTRA_HOST="$PWD/build/$preset/bin/host" node --test tests/browser/*.test.js
