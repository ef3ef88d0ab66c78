// UIApplication and UIScreen.
#pragma once

#include "bindings/coregraphics/geometry.hpp"
#include "bindings/foundation/array.hpp"
#include "bindings/foundation/set.hpp"
#include "bindings/uikit/window.hpp"

namespace ui {

struct Application : objc::Kind<Application, "UIApplication", Responder> {
    using Kind::Kind;

    static Application shared() { return sendClass<"sharedApplication", Application>(); }
    /// Back to front.
    [[nodiscard]] ns::Array windows() const { return send<"windows", ns::Array>(); }
    [[nodiscard]] ns::Set connectedScenes() const { return send<"connectedScenes", ns::Set>(); }
    [[nodiscard]] Window keyWindow() const { return send<"keyWindow", Window>(); }
};

struct Screen : objc::Kind<Screen, "UIScreen"> {
    using Kind::Kind;

    static Screen main() { return sendClass<"mainScreen", Screen>(); }
    /// In points.
    [[nodiscard]] CGRect bounds() const { return send<"bounds", CGRect>(); }
    /// Pixels a point.
    [[nodiscard]] double scale() const { return send<"scale", double>(); }
};

} // namespace ui
