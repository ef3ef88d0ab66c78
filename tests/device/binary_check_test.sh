#!/usr/bin/env bash
# Checks that the library check notices what a phone would not load, or what would harm its host.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/../support/expectations.sh"
needs clang++-19 ld64.lld-19
cd "$folder"

reset() {
    rm -rf ./*
    mkdir stubs
    cat >stubs/Foundation.tbd <<'STUB'
--- !tapi-tbd
tbd-version: 4
targets: [ arm64-ios ]
install-name: '/System/Library/Frameworks/Foundation.framework/Foundation'
exports:
  - targets: [ arm64-ios ]
    symbols:
      - _NSLog # 2.0
      - dyld_stub_binder # 3.1
...
STUB
    cat >library.cpp <<'SOURCE'
extern "C" void NSLog(void* format, ...);
[[gnu::constructor]] static void start() { NSLog(nullptr); }
SOURCE
    target=arm64-apple-ios14.5
    name=@rpath/Wentra.dylib
    tables=-no_fixup_chains
    signing=-adhoc_codesign
    stripping=(-Xlinker -S -Xlinker -x)
    paths=(/var/jb/Library/Frameworks /var/jb/usr/lib @loader_path/.jbroot/Library/Frameworks
        @loader_path/.jbroot/usr/lib /Library/Frameworks /usr/lib)
}

# check: links the library and checks it; leaves $status and $output.
check() {
    clang++-19 -target "$target" -Os -fvisibility=hidden -c library.cpp
    clang++-19 -target "$target" -dynamiclib -fuse-ld=lld -nostdlib library.o stubs/*.tbd \
        -Wl,-install_name,"$name" "${paths[@]/#/-Wl,-rpath,}" -Wl,"$tables" -Wl,"$signing" \
        "${stripping[@]}" -o Wentra.dylib
    check_library
}

check_library() {
    run "$root/device/check/binary.py" Wentra.dylib stubs
}

# refuse PATTERN…: the library as it is now has faults that the patterns name.
refuse() {
    check
    [[ $status == 1 ]] || fail 'faults are accepted'
    names "$@"
    reset
}

reset
check
[[ $status == 0 ]] || fail 'a library without a fault is refused'

printf '\xff' | dd of=Wentra.dylib bs=1 seek=4000 conv=notrunc status=none
check_library
[[ $status == 1 && "$output" == *'signature holds'* ]] || fail 'a changed library is accepted'

# How it is linked.
target=arm64-apple-ios15.0
name=$folder/Wentra.dylib
paths=("${paths[@]:1}")
signing=-no_adhoc_codesign
tables=-fixup_chains
stripping=()
refuse 'for iOS, from 14.5' 'names itself by no path' "jailbreak's libraries" 'signature holds' \
    'classic form' 'symbols are stripped'
target=x86_64-apple-ios14.5-simulator
sed -i 's/arm64-ios/x86_64-ios-simulator/' stubs/*.tbd
refuse 'plain arm64'

# What is in it.
cat >>library.cpp <<'END'
extern "C" [[gnu::visibility("default")]] int wentra() { return 1; }
[[gnu::section("__DATA,__objc_selrefs"), gnu::used]] static const char* name = "text";
extern const char* path; const char* path = "/home/somebody/file";
[[gnu::constructor]] static void more() { NSLog((void*)path); }
END
sed -i "s/nullptr)/(void*)\"\/var\/jb\/Library\/File\")/" library.cpp
refuse 'exports nothing' 'machine that built it' 'one initialiser' 'selectors to make' \
    "jailbreak's root"

# What it needs of the phone.
sed -i 's/_NSLog/__Z5NSLogPvz/' stubs/*.tbd
sed -i 's/extern "C" void NSLog(void\* format/void NSLog(void* format/' library.cpp
sed -i "s|/System/Library/Frameworks|/opt/Frameworks|" stubs/*.tbd
refuse 'nothing of the C++ library' 'only libraries of the phone'
sed -i 's/# 2.0/# 15.0/' stubs/*.tbd
refuse '_NSLog only since iOS 15.0'
sed -i 's/ # 2.0//' stubs/*.tbd
sed -i 's/^      - _NSLog.*/&\n      - _NSLogv # 2.0/' stubs/*.tbd
refuse '_NSLog without the iOS version' '_NSLogv is used by nothing'
