#!/usr/bin/env bash
# Runs the recipes of docs/recipes.md against the host that WENTRA_HOST names.
set -euo pipefail
: "${WENTRA_HOST:?names the host}"
exec python3 "$(dirname "${BASH_SOURCE[0]}")/recipes_test.py"
