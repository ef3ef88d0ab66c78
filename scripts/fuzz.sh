#!/usr/bin/env bash
# Builds the fuzz targets and runs each for some seconds: ./dev fuzz [SECONDS] (30).
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

seconds="${1:-30}"
scripts/install.sh fuzz
scripts/build.sh fuzz tests/fuzz/all
for target in build/fuzz/bin/*_fuzz; do
    name="$(basename "$target")"
    printf '\n== %s, %s seconds\n' "$name" "$seconds"
    corpus="build/fuzz/corpus/$name"
    mkdir -p "$corpus"
    options=(-max_total_time="$seconds" -timeout=10 -print_final_stats=1
        -artifact_prefix="build/fuzz/$name-finding-")
    if [[ -f "tests/fuzz/$name.dict" ]]; then
        options+=(-dict="tests/fuzz/$name.dict")
    fi
    "$target" "${options[@]}" "$corpus"
done
