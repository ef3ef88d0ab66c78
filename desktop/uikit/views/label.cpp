// Labels: measuring and drawing their text.
#include "desktop/uikit/views/label.hpp"

#include "desktop/coregraphics/graphics_context.hpp"
#include "desktop/uikit/application/screen.hpp"
#include "desktop/uikit/text/text_alignment.hpp"
#include "desktop/uikit/values/color.hpp"
#include "desktop/uikit/values/font.hpp"

#include <algorithm>
#include <cmath>

namespace desktop {

ui::Label Label::initWithFrame(CGRect frame) {
    super<"initWithFrame:", ui::View>(frame);
    font_ = ui::Font::system(UIFont::defaultSize);
    textColor_ = ui::Color::label();
    self().setUserInteractionEnabled(false);
    return self();
}

void Label::setText(ns::String text) {
    if (text && !text.as<ns::String>()) {
        return; // not a string: the label stays as it is
    }
    text_ = text;
    attributed_ = nullptr;
    changed();
}

/// What was set, or else the text as it is drawn.
ns::AttributedString Label::attributedText() const {
    if (attributed_ || !text_) {
        return attributed_;
    }
    return ns::AttributedString::with(text_, textAttributes(font_, textColor_));
}

void Label::setAttributedText(ns::AttributedString text) {
    text_ = text.string();
    attributed_ = text;
    changed();
}

/// A font or colour that is set later holds for all of the text.
void Label::addAttribute(ns::String name, objc::Object value) {
    if (attributed_ && attributed_.length() > 0) {
        const auto changed =
            ns::MutableAttributedString::make<"initWithAttributedString:">(attributed_.raw());
        changed.addAttribute(name, value, {0, changed.length()});
        attributed_ = changed;
    }
}

void Label::setFont(ui::Font font) {
    font_ = font ? font : ui::Font::system(UIFont::defaultSize);
    addAttribute(ui::attributes::font(), font_);
    changed();
}

void Label::setTextColor(ui::Color color) {
    textColor_ = color ? color : ui::Color::label();
    addAttribute(ui::attributes::foregroundColor(), textColor_);
    self().setNeedsDisplay();
}

void Label::changed() {
    self().setNeedsDisplay();
    // Whoever arranges this label has to look at it again.
    if (const ui::View superview = self().superview(); superview) {
        superview.setNeedsLayout();
    }
}

TextLayout Label::layout(double width, double height, double scale) const {
    TextFrame frame;
    frame.width = width;
    frame.height = height;
    frame.alignment = drawnAlignment(alignment_);
    frame.lineBreakMode = drawnLineBreakMode(lineBreakMode_);
    frame.maximumLines = static_cast<std::size_t>(std::max(0L, numberOfLines_));
    TextRun look;
    look.font = UIFont::valueOf(font_);
    look.font.size *= scale;
    look.colour = Color::valueOf(textColor_);
    if (!attributed_) {
        return {text_.utf16(), look, frame};
    }
    const auto runs = runsOf(attributed_, {0, attributed_.length()}, look);
    return {text_.utf16(), runs, frame};
}

/// How much smaller the text is set so that its one line fits; as small as allowed if it does not.
double Label::scaleFor(double width) const {
    if (!adjusts_ || numberOfLines_ != 1) {
        return 1;
    }
    const double whole = layout(TextFrame::unlimited, TextFrame::unlimited).size().width;
    if (whole <= width) {
        return 1;
    }
    // Measures are rounded up to a third of a point: a little less than in proportion fits.
    constexpr double rounding = 1.0 / 3;
    return std::clamp((width - rounding) / whole, std::clamp(minimumScale_, 0.0, 1.0), 1.0);
}

void Label::drawRect(CGRect) {
    Canvas* canvas = currentCanvas();
    const CGRect bounds = self().bounds();
    if (canvas == nullptr || !text_) {
        return;
    }
    const TextLayout layout =
        this->layout(bounds.size.width, bounds.size.height, scaleFor(bounds.size.width));
    const double top = (bounds.size.height - layout.size().height) / 2;
    // Text stands on whole pixels, as on the phone.
    const double scale = ScreenGeometry::current().scale;
    layout.draw(canvas->context(),
                {bounds.origin.x, bounds.origin.y + std::round(top * scale) / scale});
}

CGSize Label::sizeThatFits(CGSize room) const {
    const double width = numberOfLines_ == 1 || room.width <= 0 ? TextFrame::unlimited : room.width;
    const Size size = layout(width, TextFrame::unlimited).size();
    return {size.width, size.height};
}

CGSize Label::intrinsicContentSize() const {
    return sizeThatFits({preferredWidth_, TextFrame::unlimited});
}

} // namespace desktop
