#!/usr/bin/env bash
# Builds and runs every benchmark and prints the ratios: ./dev bench [--benchmark_…].
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

scripts/build.sh release
results=build/release/bench-results
mkdir -p "$results"
for benchmark in build/release/bin/bench/*; do
    name="$(basename "$benchmark")"
    printf '\n== %s\n' "$name"
    "$benchmark" --benchmark_out="$results/$name.json" --benchmark_out_format=json "$@"
done
scripts/bench_ratios.py "$results"
