#!/usr/bin/env bash
# Checks that the project's files are short enough, and that the check refuses a long one.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/../support/expectations.sh"
check="$root/scripts/checks/file_lengths.py"

python3 "$check" "$root" || fail 'the project has files that are too long'

python3 "$check" "$folder" 2>/dev/null && fail 'a folder without sources is accepted'
mkdir -p "$folder/library/labels"
seq 500 >"$folder/library/labels/short.cpp"
python3 "$check" "$folder" || fail 'a file of 500 lines is refused'
seq 501 >"$folder/library/labels/long.cpp"
said="$(python3 "$check" "$folder" 2>&1)" && fail 'a file of 501 lines is accepted'
[[ "$said" == *'library/labels/long.cpp: 501 lines'* ]] || fail "the file is not named: $said"
