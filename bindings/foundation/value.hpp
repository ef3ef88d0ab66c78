// NSValue, with what UIKit adds to it.
#pragma once

#include "bindings/coregraphics/geometry.hpp"
#include "bindings/objc/kind.hpp"

namespace ns {

struct Value : objc::Kind<Value, "NSValue"> {
    using Kind::Kind;

    [[nodiscard]] CGRect cgRectValue() const { return send<"CGRectValue", CGRect>(); }
};

} // namespace ns
