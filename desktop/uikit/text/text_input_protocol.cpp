// The messages that text views and fields share: UITextInput's, and the actions of the edit menu.
#include "bindings/uikit/pasteboard.hpp"
#include "desktop/drawing/text_boundaries.hpp"
#include "desktop/uikit/text/text_input.hpp"
#include "desktop/uikit/text/text_position.hpp"

#include <algorithm>

namespace desktop {

using namespace ns::literals;

namespace {

// UITextStorageDirection and UITextLayoutDirection, which share their numbers.
constexpr long backward = 1;
constexpr long left = 3;
constexpr long up = 4;
constexpr long down = 5;

} // namespace

std::vector<objc::MethodRow> TextInput::textInputMethods() {
    using Self = TextInput;
    return {
        objc::property<"text", &Self::text, &Self::setText>(),
        objc::property<"attributedText", &Self::attributedText, &Self::setAttributedText>(),
        objc::property<"font", &Self::font, &Self::setFont>(),
        objc::property<"textColor", &Self::textColor, &Self::setTextColor>(),
        objc::method<"traitCollectionDidChange:", &Self::traitsChanged>(),
        objc::method<"becomeFirstResponder", &Self::becomeFirstResponder>(),
        objc::method<"resignFirstResponder", &Self::resignFirstResponder>(),
        objc::method<"insertText:", &Self::insertText>(),
        objc::method<"deleteBackward", &Self::deleteBackward>(),
        objc::method<"hasText", &Self::hasText>(),
        objc::method<"textInRange:", &Self::textInRange>(),
        objc::method<"replaceRange:withText:", &Self::replaceRange>(),
        objc::property<"selectedTextRange", &Self::selectedTextRange,
                       &Self::setSelectedTextRange>(),
        objc::method<"markedTextRange", &Self::markedTextRange>(),
        objc::property<"markedTextStyle", &Self::markedTextStyle_>(),
        objc::method<"setMarkedText:selectedRange:", &Self::setMarkedText>(),
        objc::method<"unmarkText", &Self::unmarkText>(),
        objc::method<"beginningOfDocument", &Self::beginningOfDocument>(),
        objc::method<"endOfDocument", &Self::endOfDocument>(),
        objc::method<"textRangeFromPosition:toPosition:", &Self::rangeBetween>(),
        objc::method<"positionFromPosition:offset:", &Self::positionByOffset>(),
        objc::method<"positionFromPosition:inDirection:offset:", &Self::positionInDirection>(),
        objc::method<"comparePosition:toPosition:", &Self::compare>(),
        objc::method<"offsetFromPosition:toPosition:", &Self::offsetBetween>(),
        objc::method<"caretRectForPosition:", &Self::caretRect>(),
        objc::method<"firstRectForRange:", &Self::firstRect>(),
        objc::method<"closestPositionToPoint:", &Self::closestPosition>(),
        objc::method<"closestPositionToPoint:withinRange:", &Self::closestPositionWithin>(),
        objc::method<"characterRangeAtPoint:", &Self::characterRangeAt>(),
        objc::property<"inputDelegate", &Self::inputDelegate_>(),
        objc::property<"inputView", &Self::inputView_>(),
        objc::property<"inputAccessoryView", &Self::inputAccessoryView_>(),
        objc::method<"canPerformAction:withSender:", &Self::canPerformAction>(),
        objc::method<"cut:", &Self::cut>(),
        objc::method<"copy:", &Self::copy>(),
        objc::method<"paste:", &Self::paste>(),
        objc::method<"select:", &Self::selectWord>(),
        objc::method<"selectAll:", &Self::selectAll>(),
        objc::property<"typingAttributes", &Self::typingAttributes, &Self::setTypingAttributes>(),
        objc::property<"keyboardType", &Self::keyboardType_>(),
        objc::property<"keyboardAppearance", &Self::keyboardAppearance_>(),
        objc::property<"returnKeyType", &Self::returnKeyType_>(),
        objc::property<"autocapitalizationType", &Self::autocapitalizationType_>(),
        objc::property<"autocorrectionType", &Self::autocorrectionType_>(),
        objc::property<"spellCheckingType", &Self::spellCheckingType_>(),
        objc::property<"smartQuotesType", &Self::smartQuotesType_>(),
        objc::property<"smartDashesType", &Self::smartDashesType_>(),
        objc::property<"enablesReturnKeyAutomatically", &Self::enablesReturnKeyAutomatically_>(),
        objc::property<"textContentType", &Self::textContentType_>(),
        objc::method<"undoManager", &Self::undoManager>(),
        objc::method<"_takeBack:", &Self::takeBack>(),
        objc::method<"gestureRecognizer:shouldReceiveTouch:", &Self::receives>(),
        objc::method<"_textTapped:", &Self::tapped>(),
        objc::method<"_textDoubleTapped:", &Self::doubleTapped>(),
        objc::method<"_textPressed:", &Self::pressed>(),
    };
}

ns::String TextInput::textInRange(ui::TextRange range) const {
    return textIn(TextRange::rangeOf(range));
}

void TextInput::replaceRange(ui::TextRange range, ns::String text) {
    const objc::Strong<ui::View> kept = view();
    const ns::Range replaced = clamped(TextRange::rangeOf(range));
    const ns::String written = acceptable(text ? text : u""_ns);
    unmarkText();
    remember(replaced, written.length());
    write(replaced, written);
    showCaret();
    tellChange();
}

ui::TextRange TextInput::selectedTextRange() const { return TextRange::with(selection_); }

void TextInput::setSelectedTextRange(ui::TextRange range) { select(TextRange::rangeOf(range)); }

ui::TextRange TextInput::markedTextRange() const {
    return marked_ ? TextRange::with(*marked_) : nullptr;
}

ui::TextPosition TextInput::beginningOfDocument() const { return TextPosition::at(0); }

ui::TextPosition TextInput::endOfDocument() const { return TextPosition::at(length()); }

ui::TextRange TextInput::rangeBetween(ui::TextPosition from, ui::TextPosition to) const {
    const auto [first, last] = std::minmax({TextPosition::unitOf(from), TextPosition::unitOf(to)});
    return TextRange::with({first, last - first});
}

ui::TextPosition TextInput::positionByOffset(ui::TextPosition from, long offset) const {
    const auto start = static_cast<long>(TextPosition::unitOf(from));
    const bool isInside = offset >= -start && offset <= static_cast<long>(length()) - start;
    return isInside ? TextPosition::at(static_cast<unsigned long>(start + offset)) : nullptr;
}

ui::TextPosition TextInput::positionInDirection(ui::TextPosition from, long direction,
                                                long offset) {
    unsigned long unit = TextPosition::unitOf(from);
    if (direction == up || direction == down) {
        const long lines =
            std::clamp(offset, -static_cast<long>(length()) - 1, static_cast<long>(length()) + 1);
        return TextPosition::at(
            flow().unitInLine(unit, direction == up ? -lines : lines, flow().caret(unit).x));
    }
    const bool goesBack = (direction == backward || direction == left) != (offset < 0);
    for (unsigned long step = 0; step < static_cast<unsigned long>(std::abs(offset)); ++step) {
        const ns::Range character = goesBack ? composedBefore(unit) : composedAfter(unit);
        if (character.length == 0) {
            return nullptr; // beyond the text
        }
        unit = goesBack ? character.location : character.location + character.length;
    }
    return TextPosition::at(unit);
}

long TextInput::compare(ui::TextPosition one, ui::TextPosition other) const {
    const long offset = offsetBetween(other, one);
    return static_cast<long>(offset > 0) - static_cast<long>(offset < 0);
}

long TextInput::offsetBetween(ui::TextPosition from, ui::TextPosition to) const {
    return static_cast<long>(TextPosition::unitOf(to)) -
           static_cast<long>(TextPosition::unitOf(from));
}

CGRect TextInput::caretRect(ui::TextPosition position) {
    return fromFlow(flow().caret(TextPosition::unitOf(position)));
}

CGRect TextInput::firstRect(ui::TextRange range) {
    const ns::Range units = clamped(TextRange::rangeOf(range));
    const Stretch line = flow().lineAt(units.location);
    const unsigned long lineLength = line.end - std::min(line.end, units.location);
    return boundingRect({units.location, std::min(units.length, lineLength)});
}

unsigned long TextInput::unitAt(CGPoint point) {
    const CGPoint origin = textArea().origin;
    return std::min<unsigned long>(flow().unitAt({point.x - origin.x, point.y - origin.y}),
                                   length());
}

ui::TextPosition TextInput::closestPosition(CGPoint point) {
    return TextPosition::at(unitAt(point));
}

ui::TextPosition TextInput::closestPositionWithin(CGPoint point, ui::TextRange range) {
    const ns::Range limits = clamped(TextRange::rangeOf(range));
    return TextPosition::at(
        std::clamp(unitAt(point), limits.location, limits.location + limits.length));
}

ui::TextRange TextInput::characterRangeAt(CGPoint point) {
    const unsigned long nearest = unitAt(point);
    const bool isBefore = fromFlow(flow().caret(nearest)).origin.x > point.x;
    const ns::Range character = isBefore ? composedBefore(nearest) : composedAfter(nearest);
    return character.length > 0 ? TextRange::with(character) : nullptr;
}

bool TextInput::canPerformAction(SEL action, objc::Object sender) const {
    const auto isAction = [action](SEL other) { return sel_isEqual(action, other) != 0; };
    const bool hasSelection = selection_.length > 0;
    if (isAction(objc::selector<"cut:">())) {
        return isEditable() && hasSelection && !isSecret();
    }
    if (isAction(objc::selector<"copy:">())) {
        return hasSelection && !isSecret();
    }
    if (isAction(objc::selector<"paste:">())) {
        return isEditable() && ui::Pasteboard::generalPasteboard().send<"hasStrings", bool>();
    }
    if (isAction(objc::selector<"select:">())) {
        return isSelectable() && hasText() && !hasSelection;
    }
    if (isAction(objc::selector<"selectAll:">())) {
        return isSelectable() && hasText() && selection_.length < length();
    }
    return objc::sendSuper<"canPerformAction:withSender:", bool>(ui::View::classObject(),
                                                                 view().raw(), action, sender);
}

void TextInput::cut(objc::Object sender) {
    copy(sender);
    if (selection_.length > 0 && !isSecret()) {
        erase();
    }
}

void TextInput::copy(objc::Object) {
    if (selection_.length > 0 && !isSecret()) {
        ui::Pasteboard::generalPasteboard().setString(textIn(selection_));
    }
}

void TextInput::paste(objc::Object) {
    if (const auto pasted = ui::Pasteboard::generalPasteboard().string(); pasted) {
        type(pasted);
    }
}

void TextInput::selectWord(objc::Object) {
    const unsigned long unit = selection_.location;
    constexpr unsigned long reach = 256;
    const unsigned long from = unit - std::min(unit, reach);
    const Stretch word = wordAround(plainUnits({from, 2 * reach}), unit - from);
    select({from + word.start, word.end - word.start});
}

void TextInput::selectAll(objc::Object) { select({0, length()}); }

} // namespace desktop
