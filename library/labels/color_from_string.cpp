// Colours from text, with the platform's named colours.
#include "library/labels/color_from_string.hpp"

#include "library/labels/colour_text.hpp"

#include <array>

namespace wentra::labels {
namespace {

/// The platform's colour of that name, such as "red"; nil when it has none.
ui::Color namedColour(std::u16string_view name) {
    // Selectors live for ever, so what cannot be a colour's name makes none.
    constexpr std::size_t longestName = 64;
    std::string selector;
    for (const char16_t unit : name) {
        const bool letter = (unit >= u'a' && unit <= u'z') || (unit >= u'A' && unit <= u'Z');
        const bool rest = (unit >= u'0' && unit <= u'9') || unit == u'_';
        if (!letter && !rest) {
            return nullptr;
        }
        selector += static_cast<char>(unit);
    }
    return selector.size() > longestName ? ui::Color() : ui::Color::named(selector + "Color");
}

ui::Color fromText(objc::Object, ns::String text) { return colorFromString(text); }

} // namespace

ui::Color colorFromString(ns::String text) {
    const std::u16string characters = text.utf16();
    const ColourText parts = parseColourText(characters);
    const double alpha =
        parts.alpha ? static_cast<double>(ns::String::from(*parts.alpha).floatValue()) : 1;
    if (const ui::Color color = namedColour(parts.colour); color) {
        return color.withAlphaComponent(alpha);
    }
    const Colour colour = hexColour(parts.colour).value_or(Colour{1, 1, 1, 1});
    return ui::Color::withRed(colour.red, colour.green, colour.blue, alpha);
}

std::span<const objc::Change> colourCategory() {
    static constexpr std::array changes{
        objc::classAddition<"UIColor", "colorFromString:", &fromText>(),
    };
    return changes;
}

} // namespace wentra::labels
