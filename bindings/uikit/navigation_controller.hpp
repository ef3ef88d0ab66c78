// UINavigationController.
#pragma once

#include "bindings/uikit/navigation_bar.hpp"
#include "bindings/uikit/view_controller.hpp"

namespace ui {

struct NavigationController
    : objc::Kind<NavigationController, "UINavigationController", ViewController> {
    using Kind::Kind;

    static NavigationController withRoot(ViewController root) {
        return make<"initWithRootViewController:">(root);
    }
    void push(ViewController controller, bool animated) const {
        send<"pushViewController:animated:">(controller, animated);
    }
    /// Nil when only the root is left, which stays.
    ViewController pop(bool animated) const {
        return send<"popViewControllerAnimated:", ViewController>(animated);
    }
    [[nodiscard]] ViewController topViewController() const {
        return send<"topViewController", ViewController>();
    }
    /// The root first.
    [[nodiscard]] ns::ArrayOf<ViewController> viewControllers() const {
        return send<"viewControllers", ns::ArrayOf<ViewController>>();
    }
    [[nodiscard]] NavigationBar navigationBar() const {
        return send<"navigationBar", NavigationBar>();
    }
    void setToolbarHidden(bool hidden, bool animated) const {
        send<"setToolbarHidden:animated:">(hidden, animated);
    }
};

inline NavigationController ViewController::navigationController() const {
    return send<"navigationController", NavigationController>();
}
inline NavigationItem ViewController::navigationItem() const {
    return send<"navigationItem", NavigationItem>();
}

} // namespace ui
