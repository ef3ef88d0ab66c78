#!/usr/bin/env bash
# Tests the client for scripts against the host that WENTRA_HOST names.
set -euo pipefail
: "${WENTRA_HOST:?names the host}"
exec python3 "$(dirname "${BASH_SOURCE[0]}")/client_test.py"
