#!/usr/bin/env bash
# Runs the desktop host with the arguments given, building it first when it is missing.
set -euo pipefail

binaries="$(dirname "${BASH_SOURCE[0]}")/../build/release"
if [[ ! -x "$binaries/bin/host" || ! -f "$binaries/lib/Wentra.so" ]]; then
    # Standard input and output belong to the automation protocol.
    "$(dirname "${BASH_SOURCE[0]}")/build.sh" release host Wentra </dev/null >&2
fi
exec "$binaries/bin/host" "$@"
