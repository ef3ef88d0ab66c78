#!/usr/bin/env bash
# Builds and checks the library, and its packages and those of its settings, for the phone: ./dev package [--reproduce] (also by a second build).
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

case "${1:-}" in
'' | --reproduce) ;;
*)
    printf 'package: unknown argument: %s (only --reproduce is known)\n' "$1" >&2
    exit 2
    ;;
esac

umask 022

# pack NAME CONTROL: makes the package of what lies in $content, with the control file's template.
pack() {
    mkdir -p "$content/DEBIAN"
    sed "s/@version@/$version/; s/@architecture@/$architecture/; s/@firmware@/$firmware/" \
        "$2" >"$content/DEBIAN/control"
    dpkg-deb -Zxz --root-owner-group --build "$content" \
        "$packages/$1_${version}_$architecture.deb" >/dev/null
}

# package FOLDER LAYOUT ARCHITECTURE FIRMWARE PREFIX: makes the layout's packages of the library and of
# the settings; the paths of their files begin with the prefix.
package() {
    local version packages="$1/packages" architecture="$3" firmware="$4" content
    version="$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$1/CMakeCache.txt")"
    content="$packages/library-$2"
    local libraries="$content$5/Library/MobileSubstrate/DynamicLibraries"
    mkdir -p "$libraries"
    install -m 0644 "$1/lib/Wentra.dylib" device/package/Wentra.plist "$libraries"
    pack wentra device/package/control.in
    content="$packages/settings-$2"
    settings/bundle.py "$2" "$version" "$content$5"
    pack wentra-settings settings/control.in
}

# build FOLDER: makes the library and both packages in it.
build() {
    cmake --preset device -B "$1"
    cmake --build "$1" --parallel "$(nproc)"
    rm -rf "$1/packages"
    package "$1" rootless iphoneos-arm64 15.0 /var/jb
    package "$1" rootful iphoneos-arm 14.5 ''
}

scripts/install.sh build package
export SOURCE_DATE_EPOCH="${SOURCE_DATE_EPOCH:-$(git log -1 --format=%ct)}"
build build/device
device/check/interface.py
device/check/binary.py build/device/lib/Wentra.dylib
device/check/package.py build/device/packages/*.deb

if [[ "${1:-}" == --reproduce ]]; then
    rm -rf build/device-again
    CCACHE_DISABLE=1 build build/device-again
    for made in build/device/packages/*.deb; do
        cmp "$made" "build/device-again/packages/$(basename "$made")"
    done
    printf 'reproduced: a second build gives the same bytes\n'
fi
sha256sum build/device/packages/*.deb
