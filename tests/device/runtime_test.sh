#!/usr/bin/env bash
# Compiles the phone's parts of the C++ library for Linux, in the phone's configuration, and runs them.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/../support/expectations.sh"
headers=/usr/lib/llvm-19/include/c++/v1
needs clang++-19
[[ -d "$headers" ]] || exit 77

clang++-19 -std=c++20 -O1 -fexceptions -fno-rtti -fno-c++-static-destructors -I"$root" \
    -nostdinc++ -isystem "$root/device/headers/configuration" -isystem "$headers" \
    -fvisibility-global-new-delete=force-hidden -D_LIBCPP_DISABLE_VISIBILITY_ANNOTATIONS \
    "$root"/device/runtime/*.cpp "$root"/desktop/runtime/{exceptions,ownership}.cpp \
    "$root"/bindings/{objc/kind,foundation/string_constant}.cpp \
    "$root/tests/device/runtime_program.cpp" \
    -nostdlib++ -lgnustep-base -lobjc -lstdc++ -rdynamic -o "$folder/program"
"$folder/program"
