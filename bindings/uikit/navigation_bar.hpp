// UINavigationBar and the items that it shows.
#pragma once

#include "bindings/uikit/view.hpp"

namespace ui {

struct NavigationItem : objc::Kind<NavigationItem, "UINavigationItem"> {
    using Kind::Kind;

    static NavigationItem withTitle(ns::String title) { return make<"initWithTitle:">(title); }
    [[nodiscard]] ns::String title() const { return send<"title", ns::String>(); }
};

struct NavigationBar : objc::Kind<NavigationBar, "UINavigationBar", View> {
    using Kind::Kind;

    static NavigationBar withFrame(CGRect frame) { return make<"initWithFrame:">(frame); }
    void setItems(ns::Array items) const { send<"setItems:">(items); }
    void setPrefersLargeTitles(bool large) const { send<"setPrefersLargeTitles:">(large); }
};

} // namespace ui
