// UITextField.
#pragma once

#include "bindings/uikit/control.hpp"
#include "bindings/uikit/font.hpp"

namespace ui {

/// The platform's numbers.
enum class TextFieldViewMode : long { never = 0, whileEditing = 1, unlessEditing = 2, always = 3 };

enum class KeyboardType : long {
    default_ = 0,
    asciiCapable = 1,
    numbersAndPunctuation = 2,
    url = 3,
    numberPad = 4,
};

struct TextField : objc::Kind<TextField, "UITextField", Control> {
    using Kind::Kind;

    static TextField withFrame(CGRect frame) { return make<"initWithFrame:">(frame); }

    [[nodiscard]] ns::String text() const { return send<"text", ns::String>(); }
    void setText(ns::String text) const { send<"setText:">(text); }
    [[nodiscard]] ns::String placeholder() const { return send<"placeholder", ns::String>(); }
    void setPlaceholder(ns::String text) const { send<"setPlaceholder:">(text); }
    void setFont(Font font) const { send<"setFont:">(font); }
    void setClearButtonMode(TextFieldViewMode mode) const { send<"setClearButtonMode:">(mode); }
    void setSecureTextEntry(bool secure) const { send<"setSecureTextEntry:">(secure); }
    void setKeyboardType(KeyboardType type) const { send<"setKeyboardType:">(type); }
    /// Not retained.
    void setDelegate(objc::Object delegate) const { send<"setDelegate:">(delegate); }
};

} // namespace ui
