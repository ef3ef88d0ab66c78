#!/usr/bin/env bash
# Checks that rooms include only those below, and that an include upwards is noticed.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/../support/expectations.sh"

# check: runs the check on the copy; leaves $status and $output.
check() {
    run python3 "$root/scripts/checks/rooms.py" "$folder"
}

# refuse ROOM INCLUDED WORDS: a file of that room with that include must fail and be told of.
refuse() {
    mkdir -p "$folder/$1"
    printf '#include "%s/some.hpp"\n' "$2" >"$folder/$1/upwards.cpp"
    check
    [[ $status == 1 ]] || fail "$1 may include $2"
    [[ "$output" == *"$1/upwards.cpp: $3"* ]] || fail "$1 and $2 are not named"
    rm "$folder/$1/upwards.cpp"
}

cp -r "$root/bindings" "$root/library" "$root/desktop" "$folder"
check
[[ $status == 0 ]] || fail 'the rooms as they are do not pass'

refuse library/labels library/toolbox 'labels may not include toolbox'
refuse library/files library/crashlogs 'files may not include crashlogs'
refuse library/common library/startup 'common may not include startup'
refuse library/attic library/common 'the table has no room attic'
refuse desktop/host desktop/viewer 'host may not include viewer'
refuse desktop/runtime desktop/uikit 'runtime may not include uikit'
refuse library/labels desktop/uikit 'library may not include desktop'
refuse desktop/uikit library/labels 'desktop may not include library'
refuse bindings/uikit library/labels 'bindings may not include library'
