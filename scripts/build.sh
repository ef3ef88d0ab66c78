#!/usr/bin/env bash
# Builds everything, or only the targets given: ./dev build [PRESET [TARGET…]] (release, quick, sanitize, fuzz).
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

preset="${1:-release}"
scripts/install.sh build
cmake --preset "$preset"
cmake --build --preset "$preset" --parallel "$(nproc)" ${2:+--target "${@:2}"}
