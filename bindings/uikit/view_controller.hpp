// UIViewController.
#pragma once

#include "bindings/uikit/window.hpp"

namespace ui {

struct ViewController : objc::Kind<ViewController, "UIViewController", Responder> {
    using Kind::Kind;

    /// Loads the view when it is not loaded yet.
    [[nodiscard]] View view() const { return send<"view", View>(); }
    void setView(View view) const { send<"setView:">(view); }
    void viewDidLoad() const { send<"viewDidLoad">(); }
    [[nodiscard]] ns::String title() const { return send<"title", ns::String>(); }
    void setTitle(ns::String title) const { send<"setTitle:">(title); }
    [[nodiscard]] ViewController presentedViewController() const {
        return send<"presentedViewController", ViewController>();
    }
};

inline ViewController Window::rootViewController() const {
    return send<"rootViewController", ViewController>();
}
inline void Window::setRootViewController(ViewController controller) const {
    send<"setRootViewController:">(controller);
}

} // namespace ui
