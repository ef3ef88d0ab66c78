// UIToolbar.
#pragma once

#include "bindings/uikit/bar_button_item.hpp"
#include "bindings/uikit/view.hpp"

namespace ui {

struct Toolbar : objc::Kind<Toolbar, "UIToolbar", View> {
    using Kind::Kind;

    static Toolbar withFrame(CGRect frame) { return make<"initWithFrame:">(frame); }
    /// Bar button items, from left to right.
    void setItems(ns::Array items) const { send<"setItems:">(items); }
};

} // namespace ui
