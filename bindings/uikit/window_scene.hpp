// UIWindowScene.
#pragma once

#include "bindings/foundation/array.hpp"
#include "bindings/uikit/window.hpp"

namespace ui {

/// A scene's activation states, as the platform numbers them.
namespace activation {
inline constexpr long foregroundActive = 0;
inline constexpr long foregroundInactive = 1;
inline constexpr long background = 2;
} // namespace activation

struct WindowScene : objc::Kind<WindowScene, "UIWindowScene"> {
    using Kind::Kind;

    [[nodiscard]] long activationState() const { return send<"activationState", long>(); }
    [[nodiscard]] ns::Array windows() const { return send<"windows", ns::Array>(); }
};

inline WindowScene Window::windowScene() const { return send<"windowScene", WindowScene>(); }

} // namespace ui
