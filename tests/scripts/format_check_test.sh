#!/usr/bin/env bash
# Checks that the format check notices a badly formatted file, and rewrites it only when asked to.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/../support/expectations.sh"
needs clang-format

good='int twice(int number) { return 2 * number; }'
bad='int twice( int number ){return 2*number;}'
printf '%s\n' "$good" >"$folder/good.cpp"
printf '%s\n' "$bad" >"$folder/bad file.cpp"

"$root/dev" format --check "$folder/good.cpp" || fail 'a good file is refused'
if "$root/dev" format --check "$folder/good.cpp" "$folder/bad file.cpp" 2>/dev/null; then
    fail 'a bad file is accepted'
fi
[[ "$(<"$folder/bad file.cpp")" == "$bad" ]] || fail 'the check rewrites the file'

"$root/dev" format "$folder/bad file.cpp"
[[ "$(<"$folder/bad file.cpp")" == "$good" ]] || fail 'formatting leaves the file bad'
