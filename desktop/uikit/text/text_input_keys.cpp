// Keys that move the caret, extend the selection and erase.
#include "desktop/drawing/text_boundaries.hpp"
#include "desktop/uikit/text/text_input.hpp"

#include "bindings/uikit/menu_controller.hpp"

#include <algorithm>

namespace desktop {
namespace {

bool isVertical(TextMovement movement) {
    return movement == TextMovement::up || movement == TextMovement::down;
}

bool goesBack(TextMovement movement) {
    switch (movement) {
    case TextMovement::left:
    case TextMovement::up:
    case TextMovement::wordLeft:
    case TextMovement::lineStart:
    case TextMovement::start:
        return true;
    default:
        return false;
    }
}

/// What lies between two places.
ns::Range between(unsigned long one, unsigned long other) {
    const auto [first, last] = std::minmax(one, other);
    return {first, last - first};
}

} // namespace

unsigned long TextInput::looseEnd() const {
    const unsigned long end = selection_.location + selection_.length;
    return anchor_ == end ? selection_.location : end;
}

/// The last place that is seen on the line: a caret behind the space at which a line is broken
/// stands on the next one.
unsigned long TextInput::lineEnd(unsigned long unit) {
    const Stretch line = flow().lineAt(unit);
    const bool isLast = flow().lineAt(line.end).start == line.start;
    return isLast ? line.end : composedBefore(line.end).location;
}

unsigned long TextInput::destination(TextMovement movement, unsigned long from) {
    if (isSecret() && (movement == TextMovement::wordLeft || movement == TextMovement::wordRight)) {
        return goesBack(movement) ? 0 : length(); // what its words are is secret too
    }
    switch (movement) {
    case TextMovement::left:
        return composedBefore(from).location;
    case TextMovement::right:
        return from + composedAfter(from).length;
    case TextMovement::up:
    case TextMovement::down:
        return flow().unitInLine(from, goesBack(movement) ? -1 : 1, *column_);
    case TextMovement::wordLeft:
        return wordStartBefore(plainUnits({0, length()}), from);
    case TextMovement::wordRight:
        return wordEndAfter(plainUnits({0, length()}), from);
    case TextMovement::lineStart:
        return flow().lineAt(from).start;
    case TextMovement::lineEnd:
        return lineEnd(from);
    case TextMovement::start:
        return 0;
    case TextMovement::end:
        return length();
    }
    return from;
}

void TextInput::move(TextMovement movement, bool extends) {
    if (!isSelectable()) {
        return;
    }
    const objc::Strong<ui::View> kept = view();
    ui::MenuController::sharedMenuController().hideMenu();
    unmarkText();
    history_.pause();
    const unsigned long first = selection_.location;
    const unsigned long last = first + selection_.length;
    const unsigned long side = goesBack(movement) ? first : last;
    const unsigned long from = extends && anchor_ ? looseEnd() : side;
    const unsigned long anchor = extends && anchor_ ? *anchor_ : first + last - side;
    column_ =
        isVertical(movement) ? column_.value_or(flow().caret(from).x) : std::optional<double>();
    const auto column = column_;
    const bool collapses = !extends && selection_.length > 0 &&
                           (movement == TextMovement::left || movement == TextMovement::right);
    const unsigned long to = collapses ? side : destination(movement, from);
    select(extends ? between(anchor, to) : ns::Range{to, 0});
    column_ = column; // up and down keep to it, whatever the lines between are like
    if (extends) {
        anchor_ = anchor;
    }
    showCaret();
}

void TextInput::erase(TextMovement to) {
    const objc::Strong<ui::View> kept = view();
    ui::MenuController::sharedMenuController().hideMenu();
    if (!isEditable()) {
        return;
    }
    const bool isPlain = to == TextMovement::left || selection_.length > 0;
    if (isVertical(to)) {
        column_ = flow().caret(selection_.location).x;
    }
    const ns::Range range =
        selection_.length > 0 ? selection_
                              : between(selection_.location, destination(to, selection_.location));
    if (range.length > 0 && !mayChange(range, ns::String::from(u""))) {
        return;
    }
    if (isPlain) {
        kept.send<"deleteBackward">();
    } else if (range.length > 0) {
        unmarkText();
        remember(clamped(range), 0);
        write(clamped(range), ns::String::from(u""));
        showCaret();
        tellChange();
    }
}

} // namespace desktop
