// YYLabel: a label that an application brings itself, which draws its text without a UILabel.
#pragma once

#include "bindings/applications/yy_label.hpp"
#include "bindings/uikit/font.hpp"
#include "bindings/uikit/label.hpp"
#include "desktop/class.hpp"
#include "desktop/drawing/text_layout.hpp"

namespace desktop::host {

class YYLabel : public PlatformClass<YYLabel, apps::YYLabel> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::property<"text", &YYLabel::text, &YYLabel::setText>(),
            objc::property<"font", &YYLabel::font_, &YYLabel::redraw>(),
            objc::property<"textColor", &YYLabel::textColor_, &YYLabel::redraw>(),
            objc::property<"numberOfLines", &YYLabel::numberOfLines_, &YYLabel::redraw>(),
            objc::method<"drawRect:", &YYLabel::drawRect>(),
            objc::method<"sizeThatFits:", &YYLabel::sizeThatFits>(),
        };
    }

private:
    [[nodiscard]] ns::String text() const { return text_; }
    void setText(ns::String text);
    void redraw() { self().setNeedsDisplay(); }
    void drawRect(CGRect dirty);
    [[nodiscard]] CGSize sizeThatFits(CGSize room) const;
    [[nodiscard]] TextLayout layout(CGSize room) const;

    objc::Copied<ns::String> text_;
    objc::Strong<ui::Font> font_ = ui::Font::system(17);
    objc::Strong<ui::Color> textColor_ = ui::Color::label();
    long numberOfLines_ = 1;
};

} // namespace desktop::host
