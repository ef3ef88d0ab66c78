#!/usr/bin/env bash
# Checks that the check of handles passes, and that it notices second, misplaced and misnamed ones.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/../support/expectations.sh"

# check: runs the check on the copy; leaves $status and $output.
check() {
    run python3 "$root/scripts/checks/handles.py" "$folder"
}

# refuse FILE HANDLE CLASS PATTERN: with that handle in that file the check must fail and say so.
refuse() {
    printf 'struct %s : objc::Kind<%s, "%s"> {};\n' "$2" "$2" "$3" >"$folder/$1"
    check
    [[ $status == 1 ]] || fail "$2 in $1 is accepted"
    [[ "$output" == *"$4"* ]] || fail "$2 in $1 is not named"
    rm "$folder/$1"
}

cp -r "$root"/{bindings,library,desktop,tests,bench} "$folder"
mkdir "$folder/device"
cp "$root/device/interface.txt" "$folder/device"
check
[[ $status == 0 ]] || fail 'the handles as they are do not pass'

refuse desktop/second.hpp CalloutKind UICalloutBar 'UICalloutBar has 2 handles'
refuse library/slider.hpp Slider UISlider 'library/slider.hpp: the handle of UISlider belongs in bindings/'
refuse library/feed.hpp FeedLabel AWELeftSideBarCollectionReusableView 'belongs in bindings/'
refuse bindings/uikit/switch.hpp Slider UISlider 'UISlider has no file of its own'
refuse bindings/uikit/slider.hpp Slide UISlider "UISlider's handle is called Slide"
