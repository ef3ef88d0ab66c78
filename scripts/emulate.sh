#!/usr/bin/env bash
# Runs the host's tests with the phone's own library, emulated: ./dev emulate [--control] [--tour | CTEST ARGUMENTS].
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

usage='usage: ./dev emulate [--control] [--tour | CTEST ARGUMENTS]

Runs the tests of the host and of the features, or the tour, with the library of ./dev package, in the
desktop host for Linux on arm64.
  --control  the library is that of Linux on arm64, not the phone'"'"'s
  --tour     plays the main road and leaves screenshots
  --help     prints this'

kind=emulated
targets=(emulated_library emulated_borders)
libraries=emulation
if [[ "${1:-}" == --control ]]; then
    kind=controlled
    targets=(Wentra Borders)
    libraries=lib
    shift
fi
case "${1:-}" in
--help | -h)
    printf '%s\n' "$usage"
    exit 0
    ;;
--tour)
    if [[ $# -gt 1 ]]; then
        printf '%s\nemulate: --tour has no options\n' "$usage" >&2
        exit 2
    fi
    ;;
esac

scripts/install.sh build emulate package
scripts/emulation/sysroot.sh build/sysroot
cmake --preset arm64
cmake --build --preset arm64 --parallel "$(nproc)" --target host "${targets[@]}"

# The host finds its library by its own place, and the tests that of the borders by the host's.
folder="$PWD/build/arm64/$kind"
mkdir -p "$folder"/{bin,lib}
ln -f build/arm64/bin/host "$folder/bin/host"
ln -f build/arm64/"$libraries"/{Wentra,Borders}.so "$folder/lib"
if [[ "$kind" == emulated ]]; then
    cmake --preset device
    cmake --build --preset device --parallel "$(nproc)" --target Wentra Borders
    ln -f build/device/lib/{Wentra,Borders}.dylib "$folder/lib"
fi
cat >"$folder/host" <<END
#!/bin/sh
export WENTRA_DEVICE_ROOT_LIBRARY='$PWD/build/release/lib/libdeviceroot.so' # of programs that it starts
exec qemu-aarch64-static -L '$PWD/build/sysroot' -0 '$folder/bin/host' '$folder/bin/host' "\$@"
END
chmod +x "$folder/host"

export WENTRA_HOST="$folder/host"
if [[ "${1:-}" == --tour ]]; then
    exec python3 scripts/tour
fi
scripts/build.sh release host_tests features_tests
# A test takes some ten times as long as without emulation.
export WENTRA_PATIENCE=10
ctest --test-dir build/release --label-regex '^(host|features)$' --parallel "$(nproc)" --timeout 1200 \
    --output-on-failure --no-tests=error "$@"
