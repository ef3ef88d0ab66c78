#!/usr/bin/env bash
# Checks that the interface check notices misspelt classes and messages, and wrong types.
set -euo pipefail
root="$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)"
folder="$(mktemp -d)"
trap 'rm -r "$folder"' EXIT

fail() {
    printf 'FAILED: %s\n%s\n' "$1" "$output" >&2
    exit 1
}

# check FILE SED-EXPRESSION: runs the check on a copy with one fault; leaves $status and $output.
check() {
    rm -rf "$folder/copy"
    mkdir "$folder/copy"
    cp -r "$root/bindings" "$root/library" "$root/device" "$folder/copy"
    sed -i "$2" "$folder/copy/$1"
    if cmp -s "$root/$1" "$folder/copy/$1" && [[ -n "$2" ]]; then
        output='' fail "the fault '$2' changes nothing in $1"
    fi
    status=0
    output="$(python3 "$root/device/check/interface.py" "$folder/copy" 2>&1)" || status=$?
}

# refuse FILE SED-EXPRESSION PATTERN: the check must fail and say so.
refuse() {
    check "$@"
    [[ $status == 1 ]] || fail "'$2' in $1 is accepted"
    [[ "$output" == *"$3"* ]] || fail "'$2' in $1 is not named"
}

check library/startup/start_up.cpp ''
[[ $status == 0 ]] || fail 'the sources as they are do not pass'

refuse bindings/uikit/label.hpp 's/setNumberOfLines:/setNumberOfLine:/' \
    '-[UILabel setNumberOfLine:]: no such method'
refuse bindings/uikit/label.hpp 's/"UILabel"/"UILable"/' 'class UILable: not in the table'
refuse bindings/uikit/view.hpp 's/send<"alpha", double>/send<"alpha", float>/' \
    '-[UIView alpha]: types f'
refuse bindings/uikit/view.hpp 's/void setAlpha(double/void setAlpha(float/' \
    '-[UIView setAlpha:]: types v f'
refuse bindings/foundation/string.hpp 's/"retain/"retian/;s/"isEqualToString:/"isEqualToStrin:/' \
    '-[NSString isEqualToStrin:]'
refuse bindings/uikit/window.hpp 's/send<"window", Window>/send<"widow", Window>/' \
    '-[UIView widow]: no such method'
refuse library/scratchpad/scratch_pad_hook.cpp 's/"viewDidLoad"/"viewDidLaod"/' \
    '-[PSSplitViewController viewDidLaod]'
refuse library/labels/label_text_hooks.cpp \
    's/void withholdOneText(objc::Next<void(ns::String)>/void withholdOneText(objc::Next<void(bool)>/' \
    '-[UILabel setText:]: types v B'
refuse library/labels/label_text_hooks.cpp 's/&withholdOneText/\&somethingElsewhere/' \
    "-[UILabel setText:]: the replacement's types cannot be read"
refuse device/interface.txt 's/^WKWebView : UIView 8.0/WKWebView : UIView 15.0/' \
    'class WKWebView: only since iOS 15.0'
