#!/usr/bin/env bash
# Checks that the package check notices what a package manager or a phone would stumble over.
set -euo pipefail
root="$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)"
command -v dpkg-deb >/dev/null || exit 77
folder="$(mktemp -d)"
trap 'rm -r "$folder"' EXIT
libraries=Library/MobileSubstrate/DynamicLibraries

fail() {
    printf 'FAILED: %s\n%s\n' "$1" "$output" >&2
    exit 1
}

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

# check [DPKG-DEB OPTION…]: packages and checks both; leaves $status and $output.
check() {
    for architecture in iphoneos-arm64 iphoneos-arm; do
        dpkg-deb "${@:--Zxz}" --root-owner-group --build \
            "$folder/$architecture" "$folder/$architecture.deb" >/dev/null 2>&1
    done
    status=0
    output="$("$root/device/check/package.py" "$folder"/*.deb 2>&1)" || status=$?
}

# refuse PATTERN COMMAND…: the command, run in the rootless content, makes a fault that is named.
refuse() {
    rm -rf "${folder:?}"/*
    content iphoneos-arm64 /var/jb 15.0
    content iphoneos-arm '' 14.5
    (cd "$folder/iphoneos-arm64" && "${@:2}")
    check
    [[ $status == 1 && "$output" == *"$1"* ]] || fail "accepted, or not named: ${*:2}"
}

content iphoneos-arm64 /var/jb 15.0
content iphoneos-arm '' 14.5
check
[[ $status == 0 ]] || fail 'packages without a fault are refused'
check -Zgzip
[[ $status == 1 && "$output" == *'read by old tools'* ]] || fail 'another compression is accepted'

refuse 'all the fields' sed -i '/^Author/d' DEBIAN/control
refuse 'identifier' sed -i 's/^Package: .*/Package: dev.wentra.other/' DEBIAN/control
refuse 'under Tweaks' sed -i 's/Tweaks/Utilities/' DEBIAN/control
refuse 'sorts upwards' sed -i 's/^Version: .*/Version: 1.0-beta/' DEBIAN/control
refuse 'firmware of its layout' sed -i 's/>= 15.0/>= 14.5/' DEBIAN/control
refuse 'not a particular one' sed -i 's/mobilesubstrate/ellekit/' DEBIAN/control
refuse 'runs no scripts' install -m 0755 /bin/true DEBIAN/postinst
refuse 'folder where loaders look' touch "var/jb/$libraries/More.dylib"
refuse 'folder of another layout' mkdir -p Library
refuse 'folder where loaders look' rm "var/jb/$libraries/Wentra.plist"
refuse 'not executable' chmod 0755 "var/jb/$libraries/Wentra.dylib"
refuse 'filter tells bundles' sed -i 's/Bundles/Classes/' "var/jb/$libraries/Wentra.plist"
refuse 'data of the user' mkdir -p var/mobile
refuse 'one package for each layout' sed -i 's/iphoneos-arm64/iphoneos-arm/' DEBIAN/control
