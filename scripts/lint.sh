#!/usr/bin/env bash
# Checks scripts, format and sources: ./dev lint [--scripts | --library | FILE…] (default: what changed since main; --library: bindings and library, quickly).
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

# What the desktop's build compiles.
tidiable() {
    grep '\.[ch]pp$' | grep -Ev '^device/|_program\.cpp$' || true
}

changed_sources() {
    local main=main
    if git rev-parse --quiet --verify origin/main >/dev/null; then
        main=origin/main
    fi
    {
        git diff --name-only --diff-filter=d "$(git merge-base "$main" HEAD)"
        git ls-files --others --exclude-standard
    } | sort -u | tidiable
}

tidy() {
    # What GCC has precompiled, clang cannot read.
    cmake --preset release -B build/lint -D CMAKE_DISABLE_PRECOMPILE_HEADERS=ON -D WENTRA_JOINED_SOURCES=0 >/dev/null
    # GCC's headers of the Objective-C runtime are not among those that clang looks for.
    printf '%s\0' "$@" | xargs -0 -n 1 -P "$(nproc)" \
        clang-tidy --quiet "${checks[@]}" -p build/lint --extra-arg=-Wno-pragma-once-outside-header \
        --extra-arg=-idirafter"$(g++ -print-file-name=include)"
}

scripts/install.sh build format lint
status=0
printf '== shellcheck\n'
shellcheck dev .ci/run cmake/*.sh scripts/*.sh scripts/{emulation,run}/*.sh tests/{bindings,device,scripts,support}/*.sh || status=1
[[ "${1:-}" == --scripts ]] && exit "$status"

printf '== clang-format\n'
checks=()
if [[ "${1:-}" == --library ]]; then
    mapfile -t sources < <(git ls-files {bindings,library}'/*.cpp' | tidiable)
    checks=(--checks='-clang-analyzer-*') # four fifths of the time
    set --
elif [[ $# == 0 ]]; then
    mapfile -t sources < <(changed_sources)
else
    sources=("$@")
fi
scripts/format.sh --check "$@" || status=1

printf '== clang-tidy\n'
if [[ ${#sources[@]} == 0 ]]; then
    printf 'No source has changed.\n'
else
    tidy "${sources[@]}" || status=1
fi
exit "$status"
