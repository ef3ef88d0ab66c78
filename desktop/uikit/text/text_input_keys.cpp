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

double TextInput::columnAt(unsigned long unit) { return column_ ? *column_ : flow().caret(unit).x; }

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
        return flow().unitInLine(from, goesBack(movement) ? -1 : 1, columnAt(from));
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

TextInput::Ends TextInput::ends(TextMovement movement, bool extends) const {
    if (extends && anchor_) {
        return {*anchor_, looseEnd()};
    }
    const unsigned long first = selection_.location;
    const unsigned long last = first + selection_.length;
    return goesBack(movement) ? Ends{last, first} : Ends{first, last};
}

void TextInput::move(TextMovement movement, bool extends) {
    if (!isSelectable()) {
        return;
    }
    const objc::Strong<ui::View> kept = view();
    ui::MenuController::sharedMenuController().hideMenu();
    unmarkText();
    history_.pause();
    const auto [anchor, from] = ends(movement, extends);
    const auto column = isVertical(movement) ? std::optional(columnAt(from)) : std::nullopt;
    const bool collapses = !extends && selection_.length > 0 &&
                           (movement == TextMovement::left || movement == TextMovement::right);
    const unsigned long to = collapses ? from : destination(movement, from);
    select(extends ? between(anchor, to) : ns::Range{to, 0});
    anchor_ = extends ? std::optional(anchor) : std::nullopt;
    column_ = column; // up and down keep to it, whatever the lines between are like
    showCaret();
}

ns::Range TextInput::erasedBy(TextMovement movement) {
    const unsigned long caret = selection_.location;
    return selection_.length > 0 ? selection_ : between(caret, destination(movement, caret));
}

void TextInput::erase(TextMovement to) {
    const objc::Strong<ui::View> kept = view();
    ui::MenuController::sharedMenuController().hideMenu();
    const bool isPlain = to == TextMovement::left || selection_.length > 0;
    const ns::Range range = erasedBy(to);
    if (!isEditable() || (range.length > 0 && !mayChange(range, ns::String::from(u"")))) {
        return;
    }
    if (isPlain) {
        kept.send<"deleteBackward">();
    } else if (range.length > 0) {
        eraseWithoutAsking(clamped(range));
    }
}

void TextInput::eraseWithoutAsking(ns::Range range) {
    unmarkText();
    remember(range, 0);
    write(range, ns::String::from(u""));
    showCaret();
    tellChange();
}

} // namespace desktop
