// UIWindow.
#pragma once

#include "bindings/uikit/view.hpp"

namespace ui {

struct ViewController;

struct Window : objc::Kind<Window, "UIWindow", View> {
    using Kind::Kind;

    static Window withFrame(CGRect frame) { return make<"initWithFrame:">(frame); }

    /// Defined with the view controllers, in view_controller.hpp.
    [[nodiscard]] ViewController rootViewController() const;
    void setRootViewController(ViewController controller) const;
    [[nodiscard]] bool isKeyWindow() const { return send<"isKeyWindow", bool>(); }
    void makeKeyAndVisible() const { send<"makeKeyAndVisible">(); }
};

inline Window View::window() const { return send<"window", Window>(); }

} // namespace ui
