#!/usr/bin/env bash
# Checks that the package check notices what a package manager or a phone would stumble over.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/../support/expectations.sh"
needs dpkg-deb rsvg-convert
libraries=Library/MobileSubstrate/DynamicLibraries
bundle=Library/PreferenceBundles/hovtanprefs.bundle
pane=Library/PreferenceLoader/Preferences/Wentra

# control TEMPLATE CONTENT ARCHITECTURE FIRMWARE: writes the control file, and what every package has.
control() {
    mkdir -p "$2/DEBIAN"
    sed "s/@version@/1.0/; s/@architecture@/$3/; s/@firmware@/$4/" "$root/$1" >"$2/DEBIAN/control"
    find "$2" -type d -exec chmod 0755 {} +
    find "$2" -type f -exec chmod 0644 {} +
}

# library LAYOUT PREFIX ARCHITECTURE FIRMWARE: lays out a package of the library that has no fault.
library() {
    local content="$folder/library-$1"
    rm -rf "$content"
    mkdir -p "$content$2/$libraries"
    printf 'library' >"$content$2/$libraries/Wentra.dylib"
    cp "$root/device/package/Wentra.plist" "$content$2/$libraries"
    control device/package/control.in "$content" "$3" "$4"
}

# settings LAYOUT PREFIX ARCHITECTURE FIRMWARE: the same for the settings.
settings() {
    local content="$folder/settings-$1"
    rm -rf "$content"
    [[ -d "$folder/made-$1" ]] || "$root/settings/bundle.py" "$1" 1.0 "$folder/made-$1"
    mkdir -p "$content$2"
    cp -r "$folder/made-$1/." "$content$2"
    control settings/control.in "$content" "$3" "$4"
}

# lay_out KIND: its rootless package, which gets the faults.
lay_out() {
    "$1" rootless /var/jb iphoneos-arm64 15.0
}

# build NAME [DPKG-DEB OPTION…]: packages the content.
build() {
    dpkg-deb "${@:2}" --root-owner-group --build "$folder/$1" "$folder/$1.deb" >/dev/null 2>&1
}

# check: checks all packages; leaves $status and $output.
check() {
    run "$root/device/check/package.py" "$folder"/*.deb
}

# fault PATTERN COMMAND…: the command, run in the rootless content, makes a fault that is named so.
fault() {
    (cd "$folder/$kind-rootless" && "${@:2}")
    named+=("$1")
}

# refuse: the check must fail and name every fault. Then the content is without any.
refuse() {
    build "$kind-rootless" -Zxz
    check
    [[ $status == 1 ]] || fail 'faults are accepted'
    names "${named[@]}"
    named=()
    lay_out "$kind"
    build "$kind-rootless" -Zxz
}

named=()
for kind in library settings; do
    lay_out "$kind"
    "$kind" rootful '' iphoneos-arm 14.5
    build "$kind-rootful" -Zxz
    build "$kind-rootless" -Zgzip
done
check
[[ $status == 1 && "$output" == *'read by old tools'* ]] || fail 'another compression is accepted'
build library-rootless -Zxz
build settings-rootless -Zxz
check
[[ $status == 0 ]] || fail 'packages without a fault are refused'

# What is named alike stands in different runs.
kind=library
fault 'all the fields' sed -i '/^Author/d' DEBIAN/control
fault 'under Tweaks' sed -i 's/Tweaks/Utilities/' DEBIAN/control
fault 'sorts upwards' sed -i 's/^Version: .*/Version: 1.0-beta/' DEBIAN/control
fault 'firmware of its layout' sed -i 's/>= 15.0/>= 14.5/' DEBIAN/control
fault 'particular injection framework' sed -i 's/mobilesubstrate/ellekit/' DEBIAN/control
fault 'needs an injection framework' true
fault 'runs no scripts' install -m 0755 /bin/true DEBIAN/postinst
fault 'folder where loaders look' touch "var/jb/$libraries/More.dylib"
fault 'folder of another layout' mkdir -p Library
fault 'not executable' chmod 0755 "var/jb/$libraries/Wentra.dylib"
fault 'filter tells bundles' sed -i 's/Bundles/Classes/' "var/jb/$libraries/Wentra.plist"
fault 'data of the user' mkdir -p var/mobile
refuse
fault 'identifier' sed -i 's/^Package: .*/Package: dev.wentra.other/' DEBIAN/control
fault 'there is no dev.wentra.wentra for iphoneos-arm64' true
refuse
fault 'folder where loaders look' rm "var/jb/$libraries/Wentra.plist"
refuse
fault 'there is no dev.wentra.wentra for iphoneos-arm64' \
    sed -i 's/iphoneos-arm64/iphoneos-arm/' DEBIAN/control
refuse

kind=settings
fault 'property lists can be read' truncate -s 20 "var/jb/$bundle/colors.plist"
fault 'has named colours' true
fault 'links lead to panes' rm "var/jb/$pane/Menu.plist"
fault 'row that writes where the library reads' true
fault 'pictures at each scale' rm "var/jb/$bundle/tubiao/切换@2x.png"
fault 'nothing but lists and pictures' touch "var/jb/$bundle/code"
fault 'needs the library and a loader' sed -i 's/preferenceloader, //' DEBIAN/control
refuse
fault 'one entry, with a picture' rm "var/jb/$pane/Wentra@3x.png"
fault 'row that writes where the library reads' \
    sed -i 's|/var/jb/var/mobile/Library/Preferences/||' "var/jb/$pane/Labels.plist"
fault 'pictures at each scale' truncate -s 4 "var/jb/$bundle/xfq.png"
refuse
