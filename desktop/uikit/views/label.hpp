// UILabel: text in a view.
#pragma once

#include "bindings/uikit/label.hpp"

#include "desktop/class.hpp"
#include "desktop/drawing/text_flow.hpp"
#include "desktop/uikit/values/attributed_text.hpp"

#include <optional>

namespace desktop {

class Canvas;

class Label : public PlatformClass<Label, ui::Label>, TextSource {
public:
    static constexpr auto methods() {
        return std::array{
            objc::method<"initWithFrame:", &Label::initWithFrame>(),
            objc::property<"text", &Label::text, &Label::setText>(),
            objc::property<"attributedText", &Label::attributedText, &Label::setAttributedText>(),
            objc::property<"font", &Label::font, &Label::setFont>(),
            objc::property<"textColor", &Label::textColor, &Label::setTextColor>(),
            objc::property<"textAlignment", &Label::alignment_, &Label::changed>(),
            objc::property<"lineBreakMode", &Label::lineBreakMode_, &Label::changed>(),
            objc::property<"baselineAdjustment", &Label::baselineAdjustment_>(),
            objc::property<"numberOfLines", &Label::numberOfLines_, &Label::changed>(),
            objc::property<"preferredMaxLayoutWidth", &Label::preferredWidth_, &Label::changed>(),
            objc::property<"adjustsFontSizeToFitWidth", &Label::adjusts_, &Label::changed>(),
            objc::property<"adjustsFontForContentSizeCategory", &Label::followsTextSize_,
                           &Label::resize>(),
            objc::property<"minimumScaleFactor", &Label::minimumScale_, &Label::changed>(),
            objc::flag<"enabled", &Label::enabled_>(),
            objc::flag<"highlighted", &Label::highlighted_>(),
            objc::method<"drawRect:", &Label::drawRect>(),
            objc::method<"sizeThatFits:", &Label::sizeThatFits>(),
            objc::method<"intrinsicContentSize", &Label::intrinsicContentSize>(),
            objc::method<"traitCollectionDidChange:", &Label::traitsChanged>(),
        };
    }

private:
    ui::Label initWithFrame(CGRect frame);
    [[nodiscard]] ns::String text() const { return text_; }
    void setText(ns::String text);
    [[nodiscard]] ns::AttributedString attributedText() const;
    void setAttributedText(ns::AttributedString text);
    void addAttribute(ns::String name, objc::Object value);
    [[nodiscard]] ui::Font font() const { return font_; }
    void setFont(ui::Font font);
    [[nodiscard]] ui::Color textColor() const { return textColor_; }
    void setTextColor(ui::Color color);
    void changed();
    void traitsChanged(objc::Object);
    void resize();
    void drawRect(CGRect dirty);
    void draw(Canvas& canvas, CGRect bounds) const;
    bool drawLongText(Canvas& canvas, CGRect bounds);
    [[nodiscard]] CGSize sizeThatFits(CGSize room) const;
    [[nodiscard]] CGSize intrinsicContentSize() const;
    [[nodiscard]] bool isLong() const;
    [[nodiscard]] TextRun look() const;
    [[nodiscard]] TextLayout layout(double width, double height, double scale = 1) const;
    [[nodiscard]] double scaleFor(double width) const;

    // TextSource
    [[nodiscard]] std::size_t length() const override { return text_.length(); }
    [[nodiscard]] std::u16string units(Stretch stretch) const override;
    [[nodiscard]] std::vector<TextRun> runs(Stretch stretch) const override;

    objc::Copied<ns::String> text_;
    /// Only while the text was set with attributes.
    objc::Copied<ns::AttributedString> attributed_;
    /// Text that is too long to be set as a whole.
    TextFlow flow_{*this};
    objc::Strong<ui::Font> font_;
    objc::Strong<ui::Color> textColor_;
    ui::TextAlignment alignment_ = ui::TextAlignment::natural;
    ui::LineBreakMode lineBreakMode_ = ui::LineBreakMode::truncatingTail;
    // Text whose size was adjusted stands where other text does.
    ui::BaselineAdjustment baselineAdjustment_ = ui::BaselineAdjustment::alignBaselines;
    long numberOfLines_ = 1;
    double preferredWidth_ = 0;
    double minimumScale_ = 0;
    bool adjusts_ = false;
    bool followsTextSize_ = false;
    bool enabled_ = true;
    bool highlighted_ = false;
};

} // namespace desktop
