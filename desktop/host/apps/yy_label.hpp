// YYLabel: a label that an application brings itself, which draws its text without a UILabel.
#pragma once

#include "bindings/uikit/font.hpp"
#include "bindings/uikit/label.hpp"
#include "desktop/class.hpp"
#include "desktop/drawing/text_layout.hpp"

namespace desktop::host {

struct YYLabelKind : objc::Kind<YYLabelKind, "YYLabel", ui::View> {
    using Kind::Kind;

    static YYLabelKind withFrame(CGRect frame) { return make<"initWithFrame:">(frame); }

    void setText(ns::String text) const { send<"setText:">(text); }
    void setFont(ui::Font font) const { send<"setFont:">(font); }
    void setTextColor(ui::Color color) const { send<"setTextColor:">(color); }
    void setNumberOfLines(long lines) const { send<"setNumberOfLines:">(lines); }
};

class YYLabel : public PlatformClass<YYLabel, YYLabelKind> {
public:
    static auto methods() {
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
