// UINavigationItem: what a navigation bar shows for one controller.
#pragma once

#include "bindings/foundation/array.hpp"
#include "bindings/uikit/bar_button_item.hpp"
#include "bindings/uikit/view.hpp"

namespace ui {

struct NavigationItem : objc::Kind<NavigationItem, "UINavigationItem"> {
    using Kind::Kind;

    static NavigationItem withTitle(ns::String title) { return make<"initWithTitle:">(title); }
    [[nodiscard]] ns::String title() const { return send<"title", ns::String>(); }
    void setTitle(ns::String title) const { send<"setTitle:">(title); }
    void setTitleView(View view) const { send<"setTitleView:">(view); }
    void setLeftBarButtonItem(BarButtonItem item) const { send<"setLeftBarButtonItem:">(item); }
    void setRightBarButtonItem(BarButtonItem item) const { send<"setRightBarButtonItem:">(item); }
    /// From the outside in.
    void setLeftBarButtonItems(ns::Array items) const { send<"setLeftBarButtonItems:">(items); }
    void setRightBarButtonItems(ns::Array items) const { send<"setRightBarButtonItems:">(items); }
};

} // namespace ui
