// CGContextRef: what is drawn on.
#pragma once

#include "bindings/objc/encoding.hpp"

struct CGContext;
using CGContextRef = CGContext*;

template <>
struct objc::Encoding<CGContextRef> {
    static constexpr Literal value = "^{CGContext=}";
};
