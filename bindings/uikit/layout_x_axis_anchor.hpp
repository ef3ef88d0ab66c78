// NSLayoutXAxisAnchor.
#pragma once

#include "bindings/uikit/layout_anchor.hpp"

namespace ui {

/// A vertical edge or middle line.
struct LayoutXAxisAnchor : objc::Kind<LayoutXAxisAnchor, "NSLayoutXAxisAnchor", LayoutAnchor> {
    using Kind::Kind;
};

} // namespace ui
