// CGColorRef: a colour as layers take it.
#pragma once

#include "bindings/objc/encoding.hpp"

struct CGColor;
using CGColorRef = CGColor*;

template <>
struct objc::Encoding<CGColorRef> {
    static constexpr Literal value = "^{CGColor=}";
};
