#!/usr/bin/env bash
# Builds and checks the library and its packages for the phone: ./dev package [--reproduce] (also by a second build).
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

case "${1:-}" in
'' | --reproduce) ;;
*)
    printf 'package: unknown argument: %s (only --reproduce is known)\n' "$1" >&2
    exit 2
    ;;
esac

# package FOLDER ARCHITECTURE FIRMWARE PREFIX: makes the package whose files begin with the prefix.
package() {
    local version content="$1/packages/content-$2"
    version="$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$1/CMakeCache.txt")"
    local libraries="$content$4/Library/MobileSubstrate/DynamicLibraries"
    rm -rf "$content"
    (
        umask 022
        mkdir -p "$content/DEBIAN" "$libraries"
        sed "s/@version@/$version/; s/@architecture@/$2/; s/@firmware@/$3/" \
            device/package/control.in >"$content/DEBIAN/control"
    )
    install -m 0644 "$1/lib/Wentra.dylib" device/package/Wentra.plist "$libraries"
    dpkg-deb -Zxz --root-owner-group --build "$content" "$1/packages/wentra_${version}_$2.deb" >/dev/null
}

# build FOLDER: makes the library and both packages in it.
build() {
    cmake --preset device -B "$1"
    cmake --build "$1" --parallel "$(nproc)"
    rm -rf "$1/packages"
    package "$1" iphoneos-arm64 15.0 /var/jb
    package "$1" iphoneos-arm 14.5 ''
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
