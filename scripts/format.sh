#!/usr/bin/env bash
# Formats the C++ sources, or only checks them: ./dev format [--check] [FILE…].
set -euo pipefail
root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"

action=(-i)
if [[ "${1:-}" == --check ]]; then
    action=(--dry-run --Werror)
    shift
fi
files=("$@")
if [[ $# == 0 ]]; then
    mapfile -t files < <(find "$root"/{bindings,library,desktop,device,tests,bench} -name '*.[ch]pp')
fi

"$root/scripts/install.sh" format
clang-format "${action[@]}" --style=file:"$root/.clang-format" "${files[@]}"
