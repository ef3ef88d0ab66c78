// NSLayoutDimension.
#pragma once

#include "bindings/uikit/layout_anchor.hpp"

namespace ui {

/// A width or height of a view or guide.
struct LayoutDimension : objc::Kind<LayoutDimension, "NSLayoutDimension", LayoutAnchor> {
    using Kind::Kind;

    [[nodiscard]] LayoutConstraint equalTo(double points) const {
        return send<"constraintEqualToConstant:", LayoutConstraint>(points);
    }
};

} // namespace ui
