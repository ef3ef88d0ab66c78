// NSLayoutYAxisAnchor.
#pragma once

#include "bindings/uikit/layout_anchor.hpp"

namespace ui {

/// A horizontal edge, middle line or baseline.
struct LayoutYAxisAnchor : objc::Kind<LayoutYAxisAnchor, "NSLayoutYAxisAnchor", LayoutAnchor> {
    using Kind::Kind;
};

} // namespace ui
