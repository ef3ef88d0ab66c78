// How the runtime describes a parameter in which an error is to be stored.
#pragma once

#include "bindings/objc/encoding.hpp"

template <>
struct objc::Encoding<id*> {
    static constexpr Literal value = "^@";
};
