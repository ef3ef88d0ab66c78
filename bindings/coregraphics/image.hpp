// CGImageRef: a picture as layers take it.
#pragma once

#include "bindings/objc/encoding.hpp"

struct CGImage;
using CGImageRef = CGImage*;

template <>
struct objc::Encoding<CGImageRef> {
    static constexpr Literal value = "^{CGImage=}";
};
