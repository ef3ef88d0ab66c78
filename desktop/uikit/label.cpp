// Labels: measuring and drawing their text.
#include "desktop/uikit/label.hpp"

#include "desktop/coregraphics/graphics_context.hpp"
#include "desktop/uikit/color.hpp"
#include "desktop/uikit/font.hpp"
#include "desktop/uikit/screen.hpp"

#include <algorithm>
#include <array>
#include <cmath>

namespace desktop {
namespace {

// In the order of the platform's numbers.
constexpr std::array alignments{TextAlignment::left, TextAlignment::center, TextAlignment::right,
                                TextAlignment::justified, TextAlignment::natural};
constexpr std::array lineBreakModes{LineBreakMode::wordWrapping,   LineBreakMode::characterWrapping,
                                    LineBreakMode::clipping,       LineBreakMode::truncatingHead,
                                    LineBreakMode::truncatingTail, LineBreakMode::truncatingMiddle};

/// The element that the platform's number stands for; the fallback for a number that is none.
template <class Value, std::size_t Count, class Number>
Value named(const std::array<Value, Count>& values, Number number, Value fallback) {
    const auto index = static_cast<std::size_t>(number);
    return index < Count ? values[index] : fallback;
}

} // namespace

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
    changed();
}

void Label::setFont(ui::Font font) {
    font_ = font ? font : ui::Font::system(UIFont::defaultSize);
    changed();
}

void Label::setTextColor(ui::Color color) {
    textColor_ = color ? color : ui::Color::label();
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
    frame.alignment = named(alignments, alignment_, TextAlignment::natural);
    frame.lineBreakMode = named(lineBreakModes, lineBreakMode_, LineBreakMode::truncatingTail);
    frame.maximumLines = static_cast<std::size_t>(std::max(0L, numberOfLines_));
    TextRun look;
    look.font = UIFont::valueOf(font_);
    look.font.size *= scale;
    look.colour = Color::valueOf(textColor_);
    return {text_.utf16(), look, frame};
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
