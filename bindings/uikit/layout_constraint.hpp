// NSLayoutConstraint.
#pragma once

#include "bindings/objc/kind.hpp"

namespace ui {

/// An equation between two edges or sizes; it holds as long as it is active.
struct LayoutConstraint : objc::Kind<LayoutConstraint, "NSLayoutConstraint"> {
    using Kind::Kind;

    void activate() const { send<"setActive:">(true); }
};

} // namespace ui
