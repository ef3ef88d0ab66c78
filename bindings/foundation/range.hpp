// NSRange.
#pragma once

#include "bindings/objc/encoding.hpp"

namespace ns {

/// A run of UTF-16 units, or of elements.
struct Range {
    unsigned long location = 0;
    unsigned long length = 0;
    friend constexpr bool operator==(const Range&, const Range&) = default;
};

} // namespace ns

template <>
struct objc::Encoding<ns::Range> {
    static constexpr Literal value = "{_NSRange=QQ}";
};
template <>
struct objc::Encoding<ns::Range*> {
    static constexpr Literal value = "^{_NSRange=QQ}";
};
