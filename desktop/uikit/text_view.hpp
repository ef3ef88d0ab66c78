// UITextView: text that scrolls. Editing comes with touch and keyboard.
#pragma once

#include "bindings/uikit/text_view.hpp"

#include "desktop/class.hpp"
#include "desktop/drawing/text_layout.hpp"

namespace desktop {

class TextView : public PlatformClass<TextView, ui::TextView> {
public:
    static auto methods() {
        return std::array{
            objc::method<"initWithFrame:", &TextView::initWithFrame>(),
            objc::property<"text", &TextView::text, &TextView::setText>(),
            objc::property<"font", &TextView::font, &TextView::setFont>(),
            objc::property<"textColor", &TextView::textColor_>(),
            objc::property<"textContainerInset", &TextView::inset_>(),
            objc::flag<"editable", &TextView::editable_>(),
            objc::flag<"selectable", &TextView::selectable_>(),
            objc::method<"canBecomeFirstResponder", &TextView::canBecomeFirstResponder>(),
            objc::method<"drawRect:", &TextView::drawRect>(),
            objc::method<"sizeThatFits:", &TextView::sizeThatFits>(),
        };
    }

private:
    ui::TextView initWithFrame(CGRect frame);
    [[nodiscard]] ns::String text() const { return text_; }
    void setText(ns::String text);
    [[nodiscard]] ui::Font font() const { return font_; }
    void setFont(ui::Font font);
    [[nodiscard]] bool canBecomeFirstResponder() const { return editable_ || selectable_; }
    void drawRect(CGRect dirty);
    [[nodiscard]] CGSize sizeThatFits(CGSize room) const;
    [[nodiscard]] TextLayout layout(double width) const;

    objc::Copied<ns::String> text_;
    objc::Strong<ui::Font> font_;
    objc::Strong<ui::Color> textColor_;
    UIEdgeInsets inset_{8, 0, 8, 0};
    bool editable_ = true;
    bool selectable_ = true;
};

} // namespace desktop
