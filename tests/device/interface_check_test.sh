#!/usr/bin/env bash
# Checks that the interface check notices misspelt classes and messages, and wrong types.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/../support/expectations.sh"

reset() {
    rm -rf "$folder/copy"
    mkdir "$folder/copy"
    cp -r "$root/bindings" "$root/library" "$root/device" "$folder/copy"
    named=()
}

# fault FILE SED-EXPRESSION PATTERN: puts a fault into the copy, which the check must name so.
fault() {
    local before
    before="$(sha256sum "$folder/copy/$1")"
    sed -i "$2" "$folder/copy/$1"
    if [[ "$before" == "$(sha256sum "$folder/copy/$1")" ]]; then
        output='' fail "the fault '$2' changes nothing in $1"
    fi
    named+=("$3")
}

# check: runs the check on the copy; leaves $status and $output.
check() {
    run python3 "$root/device/check/interface.py" "$folder/copy"
}

# refuse: the check must fail and name every fault. Then the copy is without any.
refuse() {
    check
    [[ $status == 1 ]] || fail 'faults are accepted'
    names "${named[@]}"
    reset
}

reset
check
[[ $status == 0 ]] || fail 'the sources as they are do not pass'

# What one fault would hide of another stands in different runs.
fault bindings/uikit/label.hpp 's/setNumberOfLines:/setNumberOfLine:/' \
    '-[UILabel setNumberOfLine:]: no such method'
fault bindings/uikit/view.hpp 's/send<"alpha", double>/send<"alpha", float>/' \
    '-[UIView alpha]: types f'
fault bindings/uikit/view.hpp 's/void setAlpha(double/void setAlpha(float/' \
    '-[UIView setAlpha:]: types v f'
fault bindings/foundation/string.hpp 's/"retain/"retian/;s/"isEqualToString:/"isEqualToStrin:/' \
    '-[NSString isEqualToStrin:]'
fault bindings/uikit/window.hpp 's/send<"window", Window>/send<"widow", Window>/' \
    '-[UIView widow]: no such method'
fault library/scratchpad/scratch_pad_hook.cpp 's/"viewDidLoad"/"viewDidLaod"/' \
    '-[PSSplitViewController viewDidLaod]'
fault library/labels/label_text_hooks.cpp \
    's/void withholdOneText(objc::Next<void(ns::String)>/void withholdOneText(objc::Next<void(bool)>/' \
    '-[UILabel setText:]: types v B'
fault device/interface.txt 's/^WKWebView : UIView 8.0/WKWebView : UIView 15.0/' \
    'class WKWebView: only since iOS 15.0'
refuse

fault bindings/uikit/label.hpp 's/"UILabel"/"UILable"/' 'class UILable: not in the table'
fault library/labels/label_text_hooks.cpp 's/&withholdOneText/\&somethingElsewhere/' \
    "-[? setText:]: the replacement's types cannot be read"
refuse

# Two handles of one name cannot be told apart; the second one would be its own superclass.
fault library/common/draggable_view.hpp \
    's/^struct TrashButton/struct Button : objc::Kind<Button, "OwnButton", ui::Button> {};\n&/' \
    'handle Button: more than one'
fault library/common/draggable_view.cpp \
    's/^void moveAlong/class ButtonPeer : public objc::Peer<ButtonPeer, Button> {};\n\&/' 'handle Button'
refuse
