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

/// One text on its way to a label, and what is read for it: the switches once, and where the rules
/// are. Good for this label only.
struct AskedText {
    ns::String text; ///< as the application gave it
    preferences::Preferences preferences = preferences::Preferences::read();
    ns::UserDefaults defaults = ns::UserDefaults::standardUserDefaults();

    [[nodiscard]] bool on(const preferences::Switch& key) const { return preferences.on(key); }
    [[nodiscard]] StoredRules rules(RuleKind kind) const { return {defaults, kind}; }
};

// `Label` is any handle with a frame, an alpha, a font and a text colour: UILabel's or YYLabel's.
// Rules are looked up by the text as the application gave it, each kind only when its switch is on.
// Main thread, normally; nothing here is kept between two labels but the global font.

/// Colours the text.
template <class Label>
void applyColourRule(Label label, const AskedText& asked) {
    if (!asked.on(preferences::keys.recolour)) {
        return;
    }
    if (const ns::String digits = asked.rules(RuleKind::colour).text(asked.text); digits) {
        const Colour colour = colourFromRgb(scanHexadecimal(digits.utf16()));
        label.setTextColor(ui::Color::withRed(colour.red, colour.green, colour.blue, colour.alpha));
    }
}

/// Sets the current font at the size of the text's own rule.
template <class Label>
void applyTextSizeRule(Label label, const AskedText& asked) {
    if (!asked.on(preferences::keys.resize)) {
        return;
    }
    if (const auto size = asked.rules(RuleKind::size).number(asked.text); size) {
        label.setFont(label.font().withSize(*size));
    }
}

/// The same, or the global size when that is switched on: then the text's own rule does not count.
template <class Label>
void applySizeRules(Label label, const AskedText& asked) {
    if (!asked.on(preferences::keys.globalFontSize)) {
        applyTextSizeRule(label, asked);
        return;
    }
    if (!asked.on(preferences::keys.resize)) {
        return;
    }
    using namespace ns::literals;
    const auto size = asked.rules(RuleKind::size).number(u"A全局大小"_ns);
    if (size) {
        const double increase = asked.preferences.number(preferences::keys.globalFontSizeIncrease);
        label.setFont(label.font().withSize(increase + *size));
    }
}

/// Height, width, horizontal and vertical position, each keeping the rest of the frame; then alpha.
void applyFrameRules(ui::View label, const AskedText& asked);

/// Sets the font of that name at the current size; an unknown name sets no font, as given. Nil: the
/// text has no rule.
template <class Label>
void applyTextFont(Label label, ns::String name) {
    if (name) {
        label.setFont(ui::Font::withName(name, label.font().pointSize()));
    }
}

/// The font of the text's own rule.
template <class Label>
void applyTextFontRule(Label label, const AskedText& asked) {
    if (asked.on(preferences::keys.changeFont)) {
        applyTextFont(label, asked.rules(RuleKind::font).text(asked.text));
    }
}

/// The same, unless a global font is in force. A global font that was used once stays in force
/// until the process ends, even after its switch is turned off.
template <class Label>
void applyFontRules(Label label, const AskedText& asked) {
    if (!asked.on(preferences::keys.changeFont)) {
        return;
    }
    using namespace ns::literals;
    const StoredRules fonts = asked.rules(RuleKind::font);
    const ns::String name =
        asked.on(preferences::keys.globalFont) ? fonts.text(u"A全局字体"_ns) : nullptr;
    if (name) {
        rememberGlobalFont(ui::Font::withName(name, label.font().pointSize()));
    }
    if (const ui::Font font = globalFont(); font) {
        label.setFont(font);
        return;
    }
    applyTextFont(label, fonts.text(asked.text));
}

} // namespace wentra::labels
