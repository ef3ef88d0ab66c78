// The text of a text view or field as a whole: what it says, its font and its colour.
#include "desktop/uikit/text/text_input.hpp"
#include "desktop/uikit/values/color.hpp"
#include "desktop/uikit/values/font.hpp"

#include <algorithm>

namespace desktop {

using namespace ns::literals;

ns::String TextInput::text() const {
    return objc::Copied<ns::String>(storage_.string()).autoreleased();
}

ns::AttributedString TextInput::attributedText() const {
    return objc::Copied<ns::AttributedString>(storage_).autoreleased();
}

void TextInput::setText(ns::String text) {
    setAttributedText(
        ns::AttributedString::with(text ? text : u""_ns, textAttributes(font_, textColor_)));
}

void TextInput::setAttributedText(ns::AttributedString text) {
    marked_.reset();
    history_.forget();
    storage_.setString(text ? text : ns::AttributedString::with(u""_ns));
    select({length(), 0});
}

void TextInput::setFont(ui::Font font) {
    font_ = font ? font : ui::Font::system(defaultFontSize());
    addAttribute(ui::attributes::font(), font_);
}

void TextInput::setTextColor(ui::Color color) {
    textColor_ = color ? color : ui::Color::label();
    addAttribute(ui::attributes::foregroundColor(), textColor_);
}

TextRun TextInput::plainLook() const {
    TextRun look;
    look.font = UIFont::valueOf(font_);
    look.colour = Color::valueOf(textColor_);
    return look;
}

void TextInput::addAttribute(ns::String name, objc::Object value) {
    if (value && length() > 0) {
        storage_.addAttribute(name, value, {0, length()});
    }
    typingAttributes_ = nullptr;
    flow_.reset();
    view().setNeedsLayout();
    view().setNeedsDisplay();
}

/// What was given, or else as the text before the caret.
ns::Dictionary TextInput::typingAttributes() const {
    if (typingAttributes_) {
        return typingAttributes_;
    }
    if (length() == 0) {
        return ns::MutableDictionary::make();
    }
    return storage_.attributesAt(selection_.location - std::min(1UL, selection_.location));
}

} // namespace desktop
