// UIWindowScene.
#pragma once

#include "bindings/foundation/array.hpp"
#include "bindings/uikit/window.hpp"

namespace ui {

/// Whether a scene is in use; the platform's numbers.
enum class SceneActivationState : long {
    unattached = -1,
    foregroundActive = 0,
    foregroundInactive = 1,
    background = 2,
};

/// How what the screen shows stands; the platform's numbers. Landscape left has the home button, or
/// the home indicator's side of the phone, to the left.
enum class InterfaceOrientation : long {
    unknown = 0,
    portrait = 1,
    portraitUpsideDown = 2,
    landscapeRight = 3,
    landscapeLeft = 4,
};

struct WindowScene : objc::Kind<WindowScene, "UIWindowScene"> {
    using Kind::Kind;

    [[nodiscard]] SceneActivationState activationState() const {
        return send<"activationState", SceneActivationState>();
    }
    [[nodiscard]] ns::ArrayOf<Window> windows() const {
        return send<"windows", ns::ArrayOf<Window>>();
    }
};

} // namespace ui
