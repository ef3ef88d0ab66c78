// NSValue, with what UIKit adds to it.
#pragma once

#include "bindings/coregraphics/geometry.hpp"
#include "bindings/foundation/range.hpp"
#include "bindings/objc/kind.hpp"

namespace ns {

struct Value : objc::Kind<Value, "NSValue"> {
    using Kind::Kind;

    static Value from(Range range) { return sendClass<"valueWithRange:", Value>(range); }
    [[nodiscard]] Range rangeValue() const { return send<"rangeValue", Range>(); }
    [[nodiscard]] CGRect cgRectValue() const { return send<"CGRectValue", CGRect>(); }
};

} // namespace ns
