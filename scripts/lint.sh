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

# describe FOLDER COUNT: writes down how sources are compiled, so many of a folder together.
describe() {
    # What GCC has precompiled, clang cannot read.
    cmake --preset release -B "$1" -D CMAKE_DISABLE_PRECOMPILE_HEADERS=ON \
        -D WENTRA_JOINED_SOURCES="$2" >/dev/null
}

# tidy FOLDER CHECKS FILE…: beside those of the configuration, or without them.
tidy() {
    # GCC's headers of the Objective-C runtime are not among those that clang looks for.
    printf '%s\0' "${@:3}" | xargs -0 -n 1 -P "$(nproc)" \
        clang-tidy --quiet --checks="$2" -p "$1" --extra-arg=-Wno-unknown-warning-option \
        --extra-arg=-Wno-pragma-once-outside-header \
        --extra-arg=-idirafter"$(g++ -print-file-name=include)"
}

# Most checks look at headers again and again: what they cost is shared by the sources of a folder. Alone,
# each shows only that it includes what it uses, and what is looked for in no included file. The analyzer
# would take four fifths of the time.
tidy_library() {
    local sources joined
    mapfile -t sources < <(git ls-files {bindings,library}'/*.cpp')
    describe build/lint-joined 20
    mapfile -t joined < <(sed -En 's/^ *"file": "(.*)",?$/\1/p' build/lint-joined/compile_commands.json |
        grep -E "^$PWD/(build/lint-joined/)?(bindings|library)/")
    local failed=0
    tidy build/lint-joined '-clang-analyzer-*,-bugprone-suspicious-include' "${joined[@]}" || failed=1
    tidy build/lint '-*,misc-unused-alias-decls,misc-unused-using-decls' "${sources[@]}" || failed=1
    return "$failed"
}

scripts/install.sh build format lint
status=0
library=false
printf '== shellcheck\n'
shellcheck dev .ci/run cmake/*.sh scripts/*.sh scripts/{emulation,run}/*.sh tests/{bindings,device,scripts,support}/*.sh || status=1
[[ "${1:-}" == --scripts ]] && exit "$status"

printf '== clang-format\n'
if [[ "${1:-}" == --library ]]; then
    library=true
    set --
elif [[ $# == 0 ]]; then
    mapfile -t sources < <(changed_sources)
else
    sources=("$@")
fi
scripts/format.sh --check "$@" || status=1

printf '== clang-tidy\n'
describe build/lint 0
if "$library"; then
    tidy_library || status=1
elif [[ ${#sources[@]} == 0 ]]; then
    printf 'No source has changed.\n'
else
    tidy build/lint '' "${sources[@]}" || status=1
fi
exit "$status"
