// Labels: measuring and drawing their text.
#include "desktop/uikit/views/label.hpp"

#include "desktop/coregraphics/graphics_context.hpp"
#include "desktop/uikit/application/screen.hpp"
#include "desktop/uikit/text/text_alignment.hpp"
#include "desktop/uikit/values/color.hpp"
#include "desktop/uikit/values/font.hpp"
#include "desktop/uikit/views/view.hpp"

#include <algorithm>
#include <cmath>

namespace desktop {
namespace {

/// In the middle, and on whole pixels, as on the phone.
Point textOrigin(CGRect bounds, double textHeight) {
    const double top = (bounds.size.height - textHeight) / 2;
    const double scale = ScreenGeometry::current().scale;
    return {bounds.origin.x, bounds.origin.y + std::round(top * scale) / scale};
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

void Label::traitsChanged(objc::Object) {
    flow_.reset(); // it holds colours
    resize();
}

/// A font that was made for a style of text follows the size that a person wants.
void Label::resize() {
    const ContentSize size = View::of(self()).traits().contentSize;
    if (const ui::Font font = UIFont::resized(font_, size); followsTextSize_ && font != font_) {
        setFont(font);
    }
}

void Label::setTextColor(ui::Color color) {
    textColor_ = color ? color : ui::Color::label();
    addAttribute(ui::attributes::foregroundColor(), textColor_);
    flow_.reset();
    self().setNeedsDisplay();
}

void Label::changed() {
    flow_.reset();
    self().setNeedsDisplay();
    // Whoever arranges this label has to look at it again.
    if (const ui::View superview = self().superview(); superview) {
        superview.setNeedsLayout();
    }
}

std::u16string Label::units(Stretch stretch) const {
    std::u16string text(stretch.end - stretch.start, u'\0');
    text_.getCharacters(text.data(), {stretch.start, text.size()});
    return text;
}

std::vector<TextRun> Label::runs(Stretch stretch) const {
    return attributed_ && stretch.start < stretch.end ? runsOf(attributed_, stretch, look())
                                                      : std::vector{look()};
}

TextRun Label::look() const {
    TextRun look;
    look.font = UIFont::valueOf(font_);
    look.colour = Color::valueOf(textColor_);
    return look;
}

TextLayout Label::layout(double width, double height, double scale) const {
    TextFrame frame;
    frame.width = width;
    frame.height = height;
    frame.alignment = drawnAlignment(alignment_);
    frame.lineBreakMode = drawnLineBreakMode(lineBreakMode_);
    frame.maximumLines = static_cast<std::size_t>(std::max(0L, numberOfLines_));
    TextRun look = this->look();
    look.font.size *= scale;
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

/// Whether the text is set as far as it is looked at, and its size estimated.
bool Label::isLong() const {
    return numberOfLines_ == 0 && length() > TextFlow::exactLength &&
           lineBreakMode_ != ui::LineBreakMode::charWrapping;
}

void Label::drawRect(CGRect) {
    Canvas* canvas = currentCanvas();
    const CGRect bounds = self().bounds();
    if (canvas != nullptr && text_ && !drawLongText(*canvas, bounds)) {
        draw(*canvas, bounds);
    }
}

/// Not if the text has to end where the label does.
bool Label::drawLongText(Canvas& canvas, CGRect bounds) {
    if (!isLong()) {
        return false;
    }
    flow_.setWidth(bounds.size.width);
    flow_.setAlignment(drawnAlignment(alignment_));
    const double height = flow_.size().height;
    if (height > bounds.size.height) {
        return false;
    }
    flow_.draw(canvas.context(), textOrigin(bounds, height));
    return true;
}

void Label::draw(Canvas& canvas, CGRect bounds) const {
    const TextLayout layout =
        this->layout(bounds.size.width, bounds.size.height, scaleFor(bounds.size.width));
    layout.draw(canvas.context(), textOrigin(bounds, layout.size().height));
}

CGSize Label::sizeThatFits(CGSize room) const {
    const double width = numberOfLines_ == 1 || room.width <= 0 ? TextFrame::unlimited : room.width;
    if (isLong()) {
        TextFlow flow(*this);
        flow.setWidth(width);
        const Size size = flow.size();
        return {size.width, size.height};
    }
    const Size size = layout(width, TextFrame::unlimited).size();
    return {size.width, size.height};
}

CGSize Label::intrinsicContentSize() const { return sizeThatFits({preferredWidth_, 0}); }

} // namespace desktop
