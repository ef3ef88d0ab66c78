// Takes colour texts apart and reads their hexadecimal digits.
#include "library/labels/colour_text.hpp"

#include "library/common/text_parts.hpp"

#include <algorithm>
#include <limits>

namespace wentra::labels {
namespace {

constexpr std::optional<std::uint32_t> hexadecimalDigit(char16_t unit) {
    if (unit >= u'0' && unit <= u'9') {
        return std::uint32_t{unit} - u'0';
    }
    if (unit >= u'a' && unit <= u'f') {
        return std::uint32_t{unit} - u'a' + 10;
    }
    if (unit >= u'A' && unit <= u'F') {
        return std::uint32_t{unit} - u'A' + 10;
    }
    return std::nullopt;
}

} // namespace

ColourText parseColourText(std::u16string_view text) {
    const std::size_t colourEnd = text.find(u'-');
    if (colourEnd == text.npos) {
        return {text, std::nullopt};
    }
    const std::u16string_view rest = text.substr(colourEnd + 1);
    return {text.substr(0, colourEnd), rest.substr(0, rest.find(u'-'))};
}

std::uint32_t scanHexadecimal(std::u16string_view text) {
    constexpr std::uint64_t largest = std::numeric_limits<std::uint32_t>::max();
    text = trimmedAtStart(text);
    if (text.starts_with(u"0x") || text.starts_with(u"0X")) {
        text.remove_prefix(2);
    }
    std::uint64_t number = 0;
    for (const char16_t unit : text) {
        const std::optional<std::uint32_t> digit = hexadecimalDigit(unit);
        if (!digit) {
            break;
        }
        number = std::min(number * 16 + *digit, largest);
    }
    return static_cast<std::uint32_t>(number);
}

Colour colourFromRgb(std::uint32_t rgb) {
    const auto component = [rgb](unsigned shift) { return ((rgb >> shift) & 0xFFU) / 255.0; };
    return {component(16), component(8), component(0), 1};
}

std::optional<Colour> hexColour(std::u16string_view colour) {
    const bool hasSign = colour.starts_with(u'#');
    if (!hasSign && colour.size() != 6) {
        return std::nullopt;
    }
    return colourFromRgb(scanHexadecimal(hasSign ? colour.substr(1) : colour));
}

} // namespace wentra::labels
