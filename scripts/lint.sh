#!/usr/bin/env bash
# Checks scripts, format and sources (those changed since main, or those given): ./dev lint [--scripts | FILE…].
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

changed_sources() {
    local main=main
    if git rev-parse --quiet --verify origin/main >/dev/null; then
        main=origin/main
    fi
    {
        git diff --name-only --diff-filter=d "$(git merge-base "$main" HEAD)"
        git ls-files --others --exclude-standard
    } | grep '\.[ch]pp$' | sort -u |
        grep -Ev '^device/|_program\.cpp$' # what the desktop's build does not compile
}

tidy() {
    cmake --preset release >/dev/null
    # GCC's headers of the Objective-C runtime are not among those that clang looks for.
    printf '%s\0' "$@" | xargs -0 -n 1 -P "$(nproc)" \
        clang-tidy --quiet -p build/release --extra-arg=-Wno-pragma-once-outside-header \
        --extra-arg=-idirafter"$(g++ -print-file-name=include)"
}

scripts/install.sh build format lint
status=0
printf '== shellcheck\n'
shellcheck dev .ci/run scripts/*.sh tests/{scripts,device}/*.sh || status=1
[[ "${1:-}" == --scripts ]] && exit "$status"

printf '== clang-format\n'
scripts/format.sh --check "$@" || status=1

printf '== clang-tidy\n'
sources=("$@")
if [[ $# == 0 ]]; then
    mapfile -t sources < <(changed_sources)
fi
if [[ ${#sources[@]} == 0 ]]; then
    printf 'No source has changed.\n'
else
    tidy "${sources[@]}" || status=1
fi
exit "$status"
