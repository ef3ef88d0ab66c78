#!/usr/bin/env bash
# Checks that the check of the loader's imports notices one that is missing, and one too many.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/../support/expectations.sh"

cp -r "$root/device" "$folder"
check() { run python3 "$root/device/check/emulation.py" "$folder"; }

check
[[ $status == 0 ]] || fail 'the sources as they are do not pass'
sed -i 's/"_strlen",//' "$folder/device/emulation/same_on_both_sides.cpp"
sed -i 's/"_fstatat"/"_fstatbelow"/' "$folder/device/emulation/files.cpp"
check
[[ $status == 1 ]] || fail 'faults are accepted'
names '_strlen: the loader does not bind it' '_fstatat: the loader does not bind it' \
    '_fstatbelow: the loader binds it, and no stub has it'
