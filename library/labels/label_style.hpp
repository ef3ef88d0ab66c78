// Styling a label by the rules for its text: colour, font size, frame, transparency, font.
#pragma once

#include "library/labels/colour_text.hpp"
#include "library/labels/global_font.hpp"
#include "library/labels/stored_rules.hpp"
#include "library/preferences/preference_keys.hpp"
#include "library/preferences/preferences.hpp"

#include "bindings/uikit/color.hpp"
#include "bindings/uikit/font.hpp"
#include "bindings/uikit/view.hpp"

namespace wentra::labels {

// `Label` is any handle with a frame, an alpha, a font and a text colour: UILabel's or YYLabel's.
// Rules are looked up by the text as the application gave it, each kind only when its switch is on.
// Main thread, normally; nothing here is kept between two labels but the global font.

/// Colours the text.
template <class Label>
void applyColourRule(Label label, ns::String text, const preferences::Preferences& preferences) {
    if (!preferences.on(preferences::keys.recolour)) {
        return;
    }
    if (const ns::String digits = StoredRules(RuleKind::colour).text(text); digits) {
        const Colour colour = colourFromRgb(scanHexadecimal(digits.utf16()));
        label.setTextColor(ui::Color::withRed(colour.red, colour.green, colour.blue, colour.alpha));
    }
}

/// Sets the current font at the size of the text's own rule.
template <class Label>
void applyTextSizeRule(Label label, ns::String text, const preferences::Preferences& preferences) {
    if (!preferences.on(preferences::keys.resize)) {
        return;
    }
    if (const auto size = StoredRules(RuleKind::size).number(text); size) {
        label.setFont(label.font().withSize(*size));
    }
}

/// The same, or the global size when that is switched on: then the text's own rule does not count.
template <class Label>
void applySizeRules(Label label, ns::String text, const preferences::Preferences& preferences) {
    if (!preferences.on(preferences::keys.globalFontSize)) {
        applyTextSizeRule(label, text, preferences);
        return;
    }
    if (!preferences.on(preferences::keys.resize)) {
        return;
    }
    const auto size = StoredRules(RuleKind::size).number(ns::String::from(globalSizeKey));
    if (size) {
        const double increase = preferences.number(preferences::keys.globalFontSizeIncrease);
        label.setFont(label.font().withSize(increase + *size));
    }
}

/// Height, width, horizontal and vertical position, each keeping the rest of the frame; then alpha.
void applyFrameRules(ui::View label, ns::String text, const preferences::Preferences& preferences);

/// Sets the font of the text's own rule at the current size; an unknown name sets no font, as
/// given.
template <class Label>
void applyTextFontRule(Label label, ns::String text, const preferences::Preferences& preferences) {
    if (!preferences.on(preferences::keys.changeFont)) {
        return;
    }
    if (const ns::String name = StoredRules(RuleKind::font).text(text); name) {
        label.setFont(ui::Font::withName(name, label.font().pointSize()));
    }
}

/// The same, unless a global font is in force. A global font that was used once stays in force
/// until the process ends, even after its switch is turned off.
template <class Label>
void applyFontRules(Label label, ns::String text, const preferences::Preferences& preferences) {
    if (!preferences.on(preferences::keys.changeFont)) {
        return;
    }
    const ns::String name = preferences.on(preferences::keys.globalFont)
                                ? StoredRules(RuleKind::font).text(ns::String::from(globalFontKey))
                                : nullptr;
    if (name) {
        rememberGlobalFont(ui::Font::withName(name, label.font().pointSize()));
    }
    if (const ui::Font font = globalFont(); font) {
        label.setFont(font);
        return;
    }
    applyTextFontRule(label, text, preferences);
}

} // namespace wentra::labels
