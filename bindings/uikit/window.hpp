// UIWindow.
#pragma once

#include "bindings/uikit/view.hpp"

namespace ui {

struct ViewController;
struct WindowScene;

struct Window : objc::Kind<Window, "UIWindow", View> {
    using Kind::Kind;

    static Window withFrame(CGRect frame) { return make<"initWithFrame:">(frame); }

    [[nodiscard]] ViewController rootViewController() const;
    void setRootViewController(ViewController controller) const;
    [[nodiscard]] WindowScene windowScene() const;
    [[nodiscard]] bool isKeyWindow() const { return send<"isKeyWindow", bool>(); }
    void makeKeyAndVisible() const { send<"makeKeyAndVisible">(); }
};

} // namespace ui

#include "bindings/uikit/view_controller.hpp"
#include "bindings/uikit/window_scene.hpp"

inline ui::ViewController ui::Window::rootViewController() const {
    return send<"rootViewController", ViewController>();
}
inline void ui::Window::setRootViewController(ViewController controller) const {
    send<"setRootViewController:">(controller);
}
inline ui::WindowScene ui::Window::windowScene() const {
    return send<"windowScene", WindowScene>();
}
