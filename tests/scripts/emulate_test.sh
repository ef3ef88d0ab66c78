#!/usr/bin/env bash
# Checks which library ./dev emulate runs and what it hands on, with stand-ins for its tools.
# shellcheck disable=SC2016 # The bodies of the stand-ins are expanded when they run.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/../support/expectations.sh"

mkdir -p "$folder"/{bin,scripts/emulation,build/arm64/{bin,lib,emulation},build/device/lib}
cp "$root/scripts/emulate.sh" "$folder/scripts"
printf 'host\n' >"$folder/build/arm64/bin/host"
printf 'of Linux\n' >"$folder/build/arm64/lib/Wentra.so"
printf 'the loader\n' >"$folder/build/arm64/emulation/Wentra.so"
printf 'of the phone\n' >"$folder/build/device/lib/Wentra.dylib"
touch "$folder"/build/arm64/{lib,emulation}/Borders.so "$folder/build/device/lib/Borders.dylib"

# tool FILE: a stand-in whose body is read from standard input.
tool() {
    { printf '#!/bin/bash\n' && cat; } >"$folder/$1"
    chmod +x "$folder/$1"
}

for script in install build emulation/sysroot; do
    tool "scripts/$script.sh" <<<'printf "%s %s\n" "${0##*/}" "$*"'
done
tool bin/cmake <<<'printf "cmake %s\n" "$*"'
tool bin/qemu-aarch64-static <<<'cat "${4%/bin/host}"/lib/*; printf "<%s>" "${@:6}"; echo'
tool bin/ctest <<<'printf "ctest %s\n" "${*: -2}"; "$WENTRA_HOST" --app "a b"; echo "patience $WENTRA_PATIENCE"'
tool bin/python3 <<<'printf "python3 %s\n" "$*"; "$WENTRA_HOST"'

# emulate ARGUMENTS: runs the script with the stand-ins; it must succeed.
emulate() {
    run env PATH="$folder/bin:$PATH" "$folder/scripts/emulate.sh" "$@"
    [[ $status == 0 ]] || fail "./dev emulate $* exits with $status"
}

emulate -R Label
names 'install.sh build emulate package' 'sysroot.sh build/sysroot' \
    'cmake --build --preset arm64' '--target host emulated_library emulated_borders' \
    'cmake --build --preset device' 'build.sh release host_tests features_tests' \
    'ctest -R Label' $'of the phone\nthe loader\n<--app><a b>' 'patience 10'

emulate --control
names '--target host Wentra Borders' $'of Linux\n<--app><a b>'
[[ "$output" != *'of the phone'* && "$output" != *'preset device'* ]] ||
    fail 'the control has to do with the phone'

emulate --tour
names 'python3 scripts/tour' $'of the phone\nthe loader'
[[ "$output" != *ctest* ]] || fail 'the tour runs tests'

run "$folder/scripts/emulate.sh" --tour -R Label
[[ $status == 2 ]] || fail "a tour with options exits with $status instead of 2"

tool bin/ctest <<<'exit 8'
run env PATH="$folder/bin:$PATH" "$folder/scripts/emulate.sh"
[[ $status != 0 ]] || fail 'failed tests go unnoticed'
