// Text fields: where text and side views lie, and drawing.
#include "desktop/coregraphics/graphics_context.hpp"
#include "desktop/uikit/controls/clear_button.hpp"
#include "desktop/uikit/text/text_alignment.hpp"
#include "desktop/uikit/text/text_field.hpp"
#include "desktop/uikit/values/color.hpp"
#include "desktop/uikit/values/font.hpp"

#include <algorithm>

namespace desktop {
namespace {

// UITextBorderStyle
constexpr long noBorder = 0;
constexpr long line = 1;
constexpr long roundedRectangle = 3;
// UITextFieldViewMode
constexpr long whileEditing = 1;
constexpr long unlessEditing = 2;
constexpr long always = 3;

// As running phones show them.
constexpr double borderInset = 7;
constexpr double cornerRadius = 5;
constexpr double roundedHeight = 34;
constexpr double clearButtonWidth = 19;
constexpr double clearButtonMargin = 5;

double verticalMiddle(CGRect room, double height) {
    return room.origin.y + (room.size.height - height) / 2;
}

/// How much of the free room is to the left of the text.
double leadingShare(ui::TextAlignment alignment) {
    switch (alignment) {
    case ui::TextAlignment::center:
        return 0.5;
    case ui::TextAlignment::right:
        return 1;
    default:
        return 0;
    }
}

} // namespace

bool TextField::shows(long mode) const {
    return mode == always || (mode == whileEditing && isEditing()) ||
           (mode == unlessEditing && !isEditing());
}

bool TextField::showsClearButton() const { return shows(clearButtonMode_) && length() > 0; }

CGRect TextField::leftViewRect(CGRect bounds) const {
    const CGSize size = leftView_.frame().size;
    return {{bounds.origin.x, verticalMiddle(bounds, size.height)}, size};
}

CGRect TextField::rightViewRect(CGRect bounds) const {
    const CGSize size = rightView_.frame().size;
    return {{bounds.origin.x + bounds.size.width - size.width, verticalMiddle(bounds, size.height)},
            size};
}

CGRect TextField::clearButtonRect(CGRect bounds) const {
    return {{bounds.origin.x + bounds.size.width - clearButtonWidth - clearButtonMargin,
             verticalMiddle(bounds, clearButtonWidth)},
            {clearButtonWidth, clearButtonWidth}};
}

CGRect TextField::textRect(CGRect bounds) const {
    const double inset = borderStyle_ == noBorder ? 0 : borderStyle_ == line ? 2 : borderInset;
    double left = bounds.origin.x + inset;
    double right = bounds.origin.x + bounds.size.width - inset;
    if (leftView_ && shows(leftViewMode_)) {
        const CGRect side = self().send<"leftViewRectForBounds:", CGRect>(bounds);
        left = std::max(left, side.origin.x + side.size.width);
    }
    if (rightView_ && shows(rightViewMode_)) {
        right = std::min(right, self().send<"rightViewRectForBounds:", CGRect>(bounds).origin.x);
    } else if (showsClearButton()) {
        right = std::min(right, self().send<"clearButtonRectForBounds:", CGRect>(bounds).origin.x);
    }
    return {{left, bounds.origin.y}, {std::max(0.0, right - left), bounds.size.height}};
}

CGRect TextField::editingRect(CGRect bounds) const {
    return self().send<"textRectForBounds:", CGRect>(bounds);
}

CGRect TextField::placeholderRect(CGRect bounds) const {
    return self().send<"textRectForBounds:", CGRect>(bounds);
}

CGRect TextField::textArea() const {
    const CGRect room = self().send<"editingRectForBounds:", CGRect>(self().bounds());
    const double height = metrics(plainLook().font).lineHeight;
    // The flow's own width cannot be asked for here: it asks for this area.
    const double free = std::max(0.0, room.size.width - textWidth_);
    return {
        {room.origin.x - scrolled_ + free * leadingShare(alignment_), verticalMiddle(room, height)},
        {TextFrame::unlimited, height}};
}

void TextField::reveal(CGRect caret) {
    const CGRect room = self().send<"editingRectForBounds:", CGRect>(self().bounds());
    measure();
    const double before = scrolled_;
    const double right = caret.origin.x + caret.size.width - room.origin.x - room.size.width;
    const double left = room.origin.x - caret.origin.x;
    scrolled_ += right > 0 ? right : left > 0 ? -left : 0;
    const double farthest = std::max(0.0, textWidth_ + caret.size.width - room.size.width);
    scrolled_ = std::clamp(scrolled_, 0.0, farthest);
    if (scrolled_ != before) {
        self().setNeedsDisplay();
        self().setNeedsLayout();
    }
}

void TextField::measure() { textWidth_ = flow().caret(length()).x; }

void TextField::setSideView(objc::Strong<ui::View>& side, ui::View view) {
    side.removeFromSuperview();
    side = view;
    if (view) {
        self().addSubview(view);
    }
    redraw();
}

void TextField::layoutSubviews() {
    super<"layoutSubviews">();
    const CGRect bounds = self().bounds();
    measure();
    clearButton_.setHidden(!showsClearButton());
    clearButton_.setFrame(self().send<"clearButtonRectForBounds:", CGRect>(bounds));
    if (leftView_) {
        leftView_.setHidden(!shows(leftViewMode_));
        leftView_.setFrame(self().send<"leftViewRectForBounds:", CGRect>(bounds));
    }
    if (rightView_) {
        rightView_.setHidden(!shows(rightViewMode_));
        rightView_.setFrame(self().send<"rightViewRectForBounds:", CGRect>(bounds));
    }
    if (isEditing()) {
        reveal(fromFlow(flow().caret(looseEnd())));
    } else {
        scrolled_ = 0;
    }
    placeSelection();
}

void TextField::drawLine(std::u16string_view text, const std::vector<TextRun>& runs,
                         CGRect room) const {
    TextFrame frame;
    frame.width = room.size.width;
    frame.maximumLines = 1;
    frame.alignment = drawnAlignment(alignment_);
    const TextLayout line(text, runs, frame);
    line.draw(currentCanvas()->context(),
              {room.origin.x, verticalMiddle(room, line.size().height)});
}

void TextField::drawRect(CGRect) {
    Canvas* canvas = currentCanvas();
    if (canvas == nullptr) {
        return;
    }
    const CGRect bounds = self().bounds();
    if (borderStyle_ == roundedRectangle) {
        canvas->fill(rectangle(bounds), Color::valueOf(ui::Color::systemBackground()),
                     cornerRadius);
        canvas->stroke(rectangle(bounds), Color::valueOf(ui::Color::named("systemGray4Color")), 0.5,
                       cornerRadius);
    } else if (borderStyle_ != noBorder) {
        canvas->stroke(rectangle(bounds), Color::valueOf(ui::Color::label()), 1);
    }
    if (length() == 0) {
        TextRun look = plainLook();
        look.colour = Color::valueOf(ui::Color::named("placeholderTextColor"));
        const std::u16string text = placeholder_.utf16();
        const auto runs = attributedPlaceholder_
                              ? runsOf(attributedPlaceholder_, {0, text.size()}, look)
                              : std::vector<TextRun>{look};
        drawLine(text, runs, self().send<"placeholderRectForBounds:", CGRect>(bounds));
    } else if (!isEditing()) {
        const Stretch all{0, std::min(length(), TextFlow::longestLine)};
        drawLine(units(all), runs(all), self().send<"textRectForBounds:", CGRect>(bounds));
    } else {
        const CGPoint origin = textArea().origin;
        canvas->save();
        canvas->clip(rectangle(self().send<"editingRectForBounds:", CGRect>(bounds)));
        flow().draw(canvas->context(), {origin.x, origin.y});
        canvas->restore();
    }
}

CGSize TextField::sizeThatFits(CGSize) const { return intrinsicContentSize(); }

CGSize TextField::intrinsicContentSize() const {
    const double height = metrics(plainLook().font).lineHeight;
    const bool empty = length() == 0;
    const Stretch all{0, std::min(length(), TextFlow::longestLine)};
    TextFrame frame;
    frame.maximumLines = 1;
    const Size text =
        empty ? TextLayout(placeholder_.utf16(), plainLook(), frame).size()
              : TextLayout(units(all), std::span<const TextRun>(runs(all)), frame).size();
    const double edges = borderStyle_ == noBorder ? 0 : 2 * borderInset;
    return {text.width + edges,
            borderStyle_ == roundedRectangle ? roundedHeight : std::max(height, text.height)};
}

} // namespace desktop
