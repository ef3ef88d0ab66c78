// UITextField.
#pragma once

#include "bindings/uikit/control.hpp"
#include "bindings/uikit/font.hpp"

namespace ui {

struct TextField : objc::Kind<TextField, "UITextField", Control> {
    using Kind::Kind;

    static TextField withFrame(CGRect frame) { return make<"initWithFrame:">(frame); }

    [[nodiscard]] ns::String text() const { return send<"text", ns::String>(); }
    void setText(ns::String text) const { send<"setText:">(text); }
    [[nodiscard]] ns::String placeholder() const { return send<"placeholder", ns::String>(); }
    void setPlaceholder(ns::String text) const { send<"setPlaceholder:">(text); }
};

} // namespace ui
