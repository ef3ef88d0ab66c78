// UIScreen.
#pragma once

#include "bindings/coregraphics/geometry.hpp"
#include "bindings/objc/kind.hpp"

namespace ui {

struct Screen : objc::Kind<Screen, "UIScreen"> {
    using Kind::Kind;

    static Screen mainScreen() { return sendClass<"mainScreen", Screen>(); }
    /// In points.
    [[nodiscard]] CGRect bounds() const { return send<"bounds", CGRect>(); }
    /// Pixels a point.
    [[nodiscard]] double scale() const { return send<"scale", double>(); }
};

} // namespace ui
