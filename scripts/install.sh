#!/usr/bin/env bash
# Installs the missing Debian packages of the given groups: build (default), browser, emulate, format, lint, fuzz, package; --list GROUP names them.
set -euo pipefail

# Group, package, and what the package is needed for.
packages='
build  g++                      the compiler
build  cmake                    describes the build
build  ninja-build              runs the build
build  pkg-config               finds the drawing libraries
build  git                      the history, and which files changed
build  libgnustep-base-dev      Foundation on the desktop
build  libobjc-12-dev           the Objective-C runtime on the desktop
build  libcairo2-dev            draws shapes and pictures
build  libicu-dev               transliterates text
build  libpsl-dev               knows the top-level domains
build  libsqlite3-dev           databases of the phone
build  sqlite3                  makes and checks databases in tests
build  libpango1.0-dev          lays out text
build  libharfbuzz-dev          measures fonts
build  libfontconfig-dev        finds fonts
build  libgdk-pixbuf-2.0-dev    reads JPEG pictures
build  nlohmann-json3-dev       the JSON of the automation protocol
build  libcurl4-openssl-dev     loads over HTTP and HTTPS
build  libssl-dev               certificates and digests of the local services
build  libboost1.81-dev         the web servers of the desktop
build  libespeak-ng-dev         speaks
build  liblz4-dev               packs what changes on the screen
build  librsvg2-bin             draws the pictures of the settings
build  zlib1g-dev               packs pictures
build  libavcodec-dev           compresses recordings of the screen
build  libavformat-dev          writes recordings of the screen as files
build  libswscale-dev           prepares pictures for recordings
build  libgtest-dev             unit tests
build  libbenchmark-dev         benchmarks
build  curl                     what URL sessions are measured against
build  fonts-inter              Latin text
build  fonts-noto-cjk           Chinese text
build  fonts-noto-color-emoji   emoji
build  fonts-dejavu-core        serif and monospaced faces
build  fonts-dejavu-extra       italic and condensed faces
build  python3                  makes the files of a used phone, runs the tour
browser chromium                shows the page in tests
browser nodejs                  runs the tests of the page
browser npm                     fetches what those tests need
emulate g++-aarch64-linux-gnu   compiles the desktop host for Linux on arm64
emulate qemu-user-static        runs that host
format clang-format             formats the sources
lint   clang-tidy               finds faults in the sources
lint   shellcheck               finds faults in the scripts
fuzz   clang                    compiles the fuzz targets
fuzz   libclang-rt-14-dev       the fuzzer and the sanitizers of clang
package clang-19                compiles for the phone
package lld-19                  links and signs for the phone
package llvm-19                 archives for the phone
package libc++-19-dev           the headers of the C++ library for the phone
package libc++abi-19-dev        the header of the C++ ABI for the phone
'

fail() {
    printf 'install: %s\n' "$1" >&2
    exit 1
}

# By Debian, or, for a command of the package's name, from elsewhere.
is_installed() {
    [[ "$(dpkg-query -W -f='${db:Status-Status}' "$1" 2>/dev/null)" == installed ]] ||
        command -v "$1" >/dev/null
}

as_root() {
    if [[ "$(id -u)" == 0 ]]; then
        "$@"
    elif command -v sudo >/dev/null; then
        sudo "$@"
    else
        fail "neither root nor sudo here; as root, run: apt-get install ${missing[*]}"
    fi
}

if [[ "${1:-}" == --list ]]; then
    while read -r group package _; do
        [[ "$group" != "$2" ]] || printf '%s\n' "$package"
    done <<<"$packages"
    exit
fi

command -v dpkg-query >/dev/null || fail 'this needs Debian 12 (there is no dpkg-query here)'

groups=("${@:-build}")
missing=()
for wanted in "${groups[@]}"; do
    known=false
    while read -r group package reason; do
        [[ "$group" == "$wanted" ]] || continue
        known=true
        is_installed "$package" && continue
        if [[ ${#missing[@]} == 0 ]]; then
            printf 'Installing from Debian:\n'
        fi
        missing+=("$package")
        printf '  %-23s %s\n' "$package" "$reason"
    done <<<"$packages"
    "$known" || fail "unknown group: $wanted"
done

[[ ${#missing[@]} == 0 ]] && exit 0

as_root apt-get update || fail 'apt-get update failed; is the network reachable?'
as_root env DEBIAN_FRONTEND=noninteractive \
    apt-get install --yes --no-install-recommends "${missing[@]}" ||
    fail 'apt-get install failed; its messages above say why (Debian 12 is expected)'
