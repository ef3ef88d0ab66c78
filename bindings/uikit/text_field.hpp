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
    [[nodiscard]] Font font() const { return send<"font", Font>(); }
    void setFont(Font font) const { send<"setFont:">(font); }
    void setTextColor(Color color) const { send<"setTextColor:">(color); }
    /// The platform's UITextBorderStyle; 3 is a rounded rectangle.
    void setBorderStyle(long style) const { send<"setBorderStyle:">(style); }
    /// The platform's UITextFieldViewMode; 1 is while editing.
    void setClearButtonMode(long mode) const { send<"setClearButtonMode:">(mode); }
    void setSecureTextEntry(bool secure) const { send<"setSecureTextEntry:">(secure); }
    /// Not retained.
    void setDelegate(objc::Object delegate) const { send<"setDelegate:">(delegate); }
};

} // namespace ui
