// UITextView.
#pragma once

#include "bindings/uikit/font.hpp"
#include "bindings/uikit/scroll_view.hpp"

namespace ui {

struct TextView : objc::Kind<TextView, "UITextView", ScrollView> {
    using Kind::Kind;

    static TextView withFrame(CGRect frame) { return make<"initWithFrame:">(frame); }

    [[nodiscard]] ns::String text() const { return send<"text", ns::String>(); }
    void setText(ns::String text) const { send<"setText:">(text); }
    [[nodiscard]] Font font() const { return send<"font", Font>(); }
    void setFont(Font font) const { send<"setFont:">(font); }
};

} // namespace ui
