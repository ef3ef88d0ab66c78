#!/usr/bin/env bash
# Checks that the package check notices what a package manager or a phone would stumble over.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/../support/expectations.sh"
needs dpkg-deb
libraries=Library/MobileSubstrate/DynamicLibraries

# content ARCHITECTURE PREFIX FIRMWARE: lays out a package that has no fault.
content() {
    local content="$folder/$1"
    mkdir -p "$content/DEBIAN" "$content$2/$libraries"
    sed "s/@version@/1.0/; s/@architecture@/$1/; s/@firmware@/$3/" \
        "$root/device/package/control.in" >"$content/DEBIAN/control"
    printf 'library' >"$content$2/$libraries/Wentra.dylib"
    cp "$root/device/package/Wentra.plist" "$content$2/$libraries"
    find "$content" -type d -exec chmod 0755 {} +
    find "$content" -type f -exec chmod 0644 {} +
}

# build ARCHITECTURE [DPKG-DEB OPTION…]: packages the content.
build() {
    dpkg-deb "${@:2}" --root-owner-group --build "$folder/$1" "$folder/$1.deb" >/dev/null 2>&1
}

# check: checks both packages; leaves $status and $output.
check() {
    run "$root/device/check/package.py" "$folder"/*.deb
}

# fault PATTERN COMMAND…: the command, run in the rootless content, makes a fault that is named so.
fault() {
    (cd "$folder/iphoneos-arm64" && "${@:2}")
    named+=("$1")
}

# refuse: the check must fail and name every fault. Then the content is without any.
refuse() {
    build iphoneos-arm64 -Zxz
    check
    [[ $status == 1 ]] || fail 'faults are accepted'
    names "${named[@]}"
    named=()
    rm -rf "$folder/iphoneos-arm64"
    content iphoneos-arm64 /var/jb 15.0
}

named=()
content iphoneos-arm64 /var/jb 15.0
content iphoneos-arm '' 14.5
build iphoneos-arm64 -Zgzip
build iphoneos-arm -Zxz
check
[[ $status == 1 && "$output" == *'read by old tools'* ]] || fail 'another compression is accepted'
build iphoneos-arm64 -Zxz
check
[[ $status == 0 ]] || fail 'packages without a fault are refused'

# What is named alike stands in different runs.
fault 'all the fields' sed -i '/^Author/d' DEBIAN/control
fault 'identifier' sed -i 's/^Package: .*/Package: dev.wentra.other/' DEBIAN/control
fault 'under Tweaks' sed -i 's/Tweaks/Utilities/' DEBIAN/control
fault 'sorts upwards' sed -i 's/^Version: .*/Version: 1.0-beta/' DEBIAN/control
fault 'firmware of its layout' sed -i 's/>= 15.0/>= 14.5/' DEBIAN/control
fault 'not a particular one' sed -i 's/mobilesubstrate/ellekit/' DEBIAN/control
fault 'runs no scripts' install -m 0755 /bin/true DEBIAN/postinst
fault 'folder where loaders look' touch "var/jb/$libraries/More.dylib"
fault 'folder of another layout' mkdir -p Library
fault 'not executable' chmod 0755 "var/jb/$libraries/Wentra.dylib"
fault 'filter tells bundles' sed -i 's/Bundles/Classes/' "var/jb/$libraries/Wentra.plist"
fault 'data of the user' mkdir -p var/mobile
refuse
fault 'folder where loaders look' rm "var/jb/$libraries/Wentra.plist"
refuse
fault 'one package for each layout' sed -i 's/iphoneos-arm64/iphoneos-arm/' DEBIAN/control
refuse
