// UITextField: one line of text. Editing comes with touch and keyboard.
#pragma once

#include "bindings/uikit/text_field.hpp"

#include "desktop/class.hpp"

namespace desktop {

class TextField : public PlatformClass<TextField, ui::TextField> {
public:
    static auto methods() {
        return std::array{
            objc::method<"initWithFrame:", &TextField::initWithFrame>(),
            objc::property<"text", &TextField::text, &TextField::setText>(),
            objc::property<"placeholder", &TextField::placeholder_>(),
            objc::property<"font", &TextField::font_>(),
            objc::property<"textColor", &TextField::textColor_>(),
            objc::method<"canBecomeFirstResponder", &TextField::canBecomeFirstResponder>(),
            objc::method<"drawRect:", &TextField::drawRect>(),
        };
    }

private:
    ui::TextField initWithFrame(CGRect frame);
    [[nodiscard]] ns::String text() const { return text_; }
    void setText(ns::String text);
    [[nodiscard]] bool canBecomeFirstResponder() const { return self().isEnabled(); }
    void drawRect(CGRect dirty);

    objc::Copied<ns::String> text_;
    objc::Copied<ns::String> placeholder_;
    objc::Strong<ui::Font> font_;
    objc::Strong<ui::Color> textColor_;
};

} // namespace desktop
