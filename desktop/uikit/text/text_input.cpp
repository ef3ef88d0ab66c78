// The state of editing: what changes when text is written, erased, composed and selected.
#include "desktop/uikit/text/text_input.hpp"

#include "bindings/uikit/menu_controller.hpp"
#include "bindings/uikit/window.hpp"
#include "desktop/drawing/text_boundaries.hpp"
#include "desktop/uikit/events/first_responder.hpp"
#include "desktop/uikit/text/text_field.hpp"
#include "desktop/uikit/text/text_view.hpp"

#include <algorithm>
#include <utility>

namespace desktop {

using namespace ns::literals;

namespace {

/// Enough of the text on each side of a unit to tell where its character ends.
constexpr unsigned long around = 256;

} // namespace

TextInput& TextInput::of(objc::Object view) { return *find(view); }

TextInput* TextInput::find(objc::Object object) {
    if (const auto view = object.as<ui::TextView>(); view) {
        return &TextView::of(view);
    }
    const auto field = object.as<ui::TextField>();
    return field ? &TextField::of(field) : nullptr;
}

TextInput::TextInput() {
    TextStorage::of(storage_).observe(
        [this](ns::Range former, unsigned long length) { edited(former, length); });
}

TextInput::~TextInput() { TextStorage::of(storage_).observe(nullptr); }

ns::Range TextInput::clamped(ns::Range range) const {
    const unsigned long start = std::min<unsigned long>(range.location, length());
    return {start, std::min<unsigned long>(range.length, length() - start)};
}

std::u16string TextInput::plainUnits(ns::Range range) const {
    const ns::Range inside = clamped(range);
    std::u16string text(inside.length, u'\0');
    storage_.string().getCharacters(text.data(), inside);
    return text;
}

std::u16string TextInput::units(Stretch stretch) const {
    std::u16string text = plainUnits({stretch.start, stretch.end - stretch.start});
    if (isSecret()) {
        // A dot for each character: the second half of a pair takes no room.
        std::ranges::replace_if(
            text, [](char16_t unit) { return unit < 0xDC00 || unit > 0xDFFF; }, u'•');
        std::ranges::replace_if(
            text, [](char16_t unit) { return unit != u'•'; }, u'\u200B');
    }
    return text;
}

std::vector<TextRun> TextInput::runs(Stretch stretch) const {
    if (stretch.start == stretch.end) {
        return {lookOf(typingAttributes(), plainLook())};
    }
    auto runs = runsOf(storage_, stretch, plainLook());
    if (!marked_) {
        return runs;
    }
    std::vector<TextRun> parts;
    const std::size_t from =
        std::max<std::size_t>(marked_->location, stretch.start) - stretch.start;
    const std::size_t to =
        std::max<std::size_t>(marked_->location + marked_->length, stretch.start) - stretch.start;
    for (const TextRun& run : runs) {
        const std::size_t end = run.start + run.length;
        for (const Stretch part : {Stretch{run.start, from}, Stretch{from, to}, Stretch{to, end}}) {
            TextRun one = run;
            one.start = std::max(run.start, part.start);
            const std::size_t partEnd = std::min(end, part.end);
            if (one.start < partEnd) {
                one.length = partEnd - one.start;
                one.underline = run.underline || part == Stretch{from, to};
                parts.push_back(one);
            }
        }
    }
    return parts;
}

ns::String TextInput::textIn(ns::Range range) const {
    return storage_.string().send<"substringWithRange:", ns::String>(clamped(range));
}

/// The storage was edited, by us or by the application.
void TextInput::edited(ns::Range former, unsigned long length) {
    flow_.replaced({former.location, former.location + former.length}, length);
    if (marked_ &&
        (former.location < marked_->location + marked_->length || clamped(*marked_) != *marked_)) {
        marked_.reset();
    }
    selection_ = clamped(selection_);
    anchor_.reset();
    if (!isWriting_ && former.length != length) {
        history_.forget();
    }
    view().setNeedsLayout();
    view().setNeedsDisplay();
}

ns::AttributedString TextInput::formerText(ns::Range range) const {
    return storage_.send<"attributedSubstringFromRange:", ns::AttributedString>(range);
}

/// Puts the text in place of the range; the caret goes behind it, and it is no composition.
void TextInput::write(ns::Range range, ns::String text) {
    replace(range, ns::AttributedString::with(text, typingAttributes()));
}

void TextInput::replace(ns::Range range, ns::AttributedString text) {
    const ns::Range former = selection_;
    isWriting_ = true;
    storage_.replace(range, text);
    isWriting_ = false;
    marked_.reset();
    selection_ = former; // whoever is told of the new one is told of a change
    select({range.location + text.length(), 0});
}

void TextInput::mark(ns::Range range) {
    marked_ = range;
    flow_.replaced({range.location, range.location + range.length}, range.length);
}

void TextInput::insertText(ns::String text) {
    const objc::Strong<ui::View> kept = view();
    const ns::Range range = clamped(replacedByTyping());
    const ns::String written = acceptable(text ? text : u""_ns);
    remember(range, written.length());
    write(range, written);
    showCaret();
    tellChange();
}

/// For undoing: the range is about to be replaced by so many units.
void TextInput::remember(ns::Range range, unsigned long length) {
    const objc::Strong<ns::AttributedString> former =
        marked_            ? std::exchange(replacedByMarked_, nullptr)
        : range.length > 0 ? objc::Strong<ns::AttributedString>(formerText(range))
                           : nullptr;
    history_.add(view(), range.location, former, length);
}

void TextInput::takeBack(TextEditKind edit) {
    const objc::Strong<ui::View> kept = view();
    unmarkText();
    const ns::Range range = clamped(TextEdit::of(edit).range);
    const objc::Strong<ns::AttributedString> text = TextEdit::of(edit).text;
    history_.add(kept, range.location, formerText(range), text.length());
    history_.pause();
    replace(range,
            text ? static_cast<ns::AttributedString>(text) : ns::AttributedString::with(u""_ns));
    showCaret();
    tellChange();
}

void TextInput::deleteBackward() {
    const objc::Strong<ui::View> kept = view();
    const ns::Range range =
        selection_.length > 0 ? selection_ : composedBefore(selection_.location);
    if (range.length == 0) {
        return;
    }
    const std::optional<ns::Range> marked = marked_;
    const bool staysMarked =
        marked && marked->location <= range.location && range.length < marked->length;
    if (!staysMarked) {
        remember(range, 0);
    }
    write(range, u""_ns);
    if (staysMarked) {
        mark({marked->location, marked->length - range.length});
    }
    showCaret();
    tellChange();
}

void TextInput::setMarkedText(ns::String text, ns::Range selected) {
    const objc::Strong<ui::View> kept = view();
    const ns::Range range = clamped(replacedByTyping());
    const ns::String shown = acceptable(text ? text : u""_ns);
    if (shown.length() == 0) {
        remember(range, 0);
    } else if (!marked_) {
        replacedByMarked_ = formerText(range);
    }
    write(range, shown);
    if (shown.length() > 0) {
        mark({range.location, shown.length()});
    }
    const unsigned long caret = std::min(selected.location, shown.length());
    select({range.location + caret, std::min(selected.length, shown.length() - caret)});
    showCaret();
    tellChange();
}

void TextInput::unmarkText() {
    if (marked_) {
        remember(*marked_, marked_->length);
    }
    if (const auto marked = std::exchange(marked_, std::nullopt); marked) {
        flow_.replaced({marked->location, marked->location + marked->length}, marked->length);
        view().setNeedsDisplay();
        view().setNeedsLayout();
    }
}

void TextInput::select(ns::Range range) {
    const ns::Range former = std::exchange(selection_, clamped(range));
    anchor_.reset();
    column_.reset();
    if (former == selection_) {
        return;
    }
    typingAttributes_ = nullptr;
    view().setNeedsLayout();
    tellSelectionChange();
}

void TextInput::type(ns::String text) {
    const objc::Strong<ui::View> kept = view();
    ui::MenuController::sharedMenuController().hideMenu();
    const ns::String written = acceptable(text);
    if (isEditable() && mayChange(clamped(replacedByTyping()), written)) {
        kept.send<"insertText:">(written);
    }
}

void TextInput::compose(ns::String text, ns::Range selected) {
    const objc::Strong<ui::View> kept = view();
    ui::MenuController::sharedMenuController().hideMenu();
    const ns::String shown = acceptable(text);
    if (isEditable() && mayChange(clamped(replacedByTyping()), shown)) {
        kept.send<"setMarkedText:selectedRange:">(shown, selected);
    }
}

ns::Range TextInput::composedAfter(unsigned long unit) const {
    const unsigned long from = unit - std::min(unit, around);
    const Stretch character = composedCharacter(plainUnits({from, 2 * around}), unit - from);
    return {unit, character.end + from - unit};
}

ns::Range TextInput::composedBefore(unsigned long unit) const {
    if (unit == 0) {
        return {};
    }
    const unsigned long from = unit - std::min(unit, around);
    const Stretch character = composedCharacter(plainUnits({from, 2 * around}), unit - 1 - from);
    return {character.start + from, unit - character.start - from};
}

bool TextInput::becomeFirstResponder() {
    const objc::Strong<ui::View> kept = view();
    if (first_responder::current() == kept) {
        return true;
    }
    if (!kept.canBecomeFirstResponder() || !kept.window() || (isEditable() && !mayBegin()) ||
        !objc::sendSuper<"becomeFirstResponder", bool>(ui::View::classObject(), kept.raw())) {
        return false;
    }
    kept.setNeedsLayout();
    if (isEditable()) {
        tellBegin();
    }
    return true;
}

bool TextInput::resignFirstResponder() {
    const objc::Strong<ui::View> kept = view();
    if (first_responder::current() != kept) {
        return true;
    }
    // Out of its window it is not asked.
    if (kept.window() && isEditable() && !mayEnd()) {
        return false;
    }
    unmarkText();
    ui::MenuController::sharedMenuController().hideMenu();
    if (!objc::sendSuper<"resignFirstResponder", bool>(ui::View::classObject(), kept.raw())) {
        return false;
    }
    kept.setNeedsLayout();
    if (isEditable()) {
        tellEnd();
    }
    return true;
}

TextFlow& TextInput::flow() {
    flow_.setWidth(textArea().size.width);
    return flow_;
}

CGRect TextInput::fromFlow(const Rectangle& rect) const {
    const CGPoint origin = textArea().origin;
    return {{origin.x + rect.x, origin.y + rect.y}, {rect.width, rect.height}};
}

CGRect TextInput::boundingRect(ns::Range range) {
    const ns::Range inside = clamped(range);
    const Rectangle first = flow().caret(inside.location);
    const Rectangle last = flow().caret(inside.location + inside.length);
    if (first.y == last.y) {
        return fromFlow({first.x, first.y, std::max(0.0, last.x - first.x), first.height});
    }
    return fromFlow({0, first.y, textArea().size.width, last.y + last.height - first.y});
}

/// In the next layout: the text is set once then, however often it has changed.
void TextInput::showCaret() {
    caretIsToBeShown_ = true;
    view().setNeedsLayout();
}

void TextInput::revealCaret() {
    if (std::exchange(caretIsToBeShown_, false)) {
        reveal(fromFlow(flow().caret(looseEnd())));
    }
}

void TextInput::placeSelection() {
    const bool isFirst = first_responder::current() == view();
    if (!selectionView_) {
        if (!isFirst) {
            return; // most text views are never edited
        }
        selectionView_ = TextSelectionViewKind::make<"initWithFrame:">(CGRect());
        view().addSubview(selectionView_);
    }
    std::vector<CGRect> lines;
    std::optional<CGRect> caret;
    if (isFirst && selection_.length > 0) {
        const CGRect visible = view().bounds();
        const double top = textArea().origin.y;
        for (const Rectangle& line : flow().rectangles(
                 {selection_.location, selection_.location + selection_.length},
                 visible.origin.y - top, visible.origin.y + visible.size.height - top)) {
            lines.push_back(fromFlow(line));
        }
    } else if (isFirst && isEditable()) {
        caret = fromFlow(flow().caret(selection_.location));
    }
    TextSelectionView::of(selectionView_).show(std::move(lines), caret);
}

} // namespace desktop
