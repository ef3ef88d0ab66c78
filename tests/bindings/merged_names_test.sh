#!/usr/bin/env bash
# Checks that the check of merged names tells two sources that collide from two that do not.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/../support/expectations.sh"
check="$root/tests/bindings/merged_names.sh"
cd "$folder"

# compile FILE CLASS: a class in an unnamed namespace, reached through a template as a peer is.
compile() {
    cat >"$1.cpp" <<SOURCE
template <auto Member>
struct Call {
    static int call(void* self);
};
template <class T, int T::*Member>
struct Call<Member> {
    static int call(void* self) { return static_cast<T*>(self)->*Member; }
};
namespace {
struct $2 {
    int value = 0;
};
}
auto $1() { return &Call<&$2::value>::call; }
SOURCE
    g++ -std=c++20 -c "$1.cpp"
}

compile first Own
compile second Other
"$check" first.o second.o || fail 'names of their own are refused'

compile second Own
! "$check" first.o second.o 2>errors || fail 'a shared name is accepted'
grep -q 'Own::value' errors || fail 'the shared name is not told'
