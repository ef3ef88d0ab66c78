// UINavigationBar.
#pragma once

#include "bindings/uikit/navigation_item.hpp"
#include "bindings/uikit/view.hpp"

namespace ui {

struct NavigationBar : objc::Kind<NavigationBar, "UINavigationBar", View> {
    using Kind::Kind;

    static NavigationBar withFrame(CGRect frame) { return make<"initWithFrame:">(frame); }
    void setItems(ns::Array items) const { send<"setItems:">(items); }
    void setPrefersLargeTitles(bool large) const { send<"setPrefersLargeTitles:">(large); }
};

} // namespace ui
