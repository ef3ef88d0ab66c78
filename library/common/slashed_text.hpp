// Quoted texts of old property lists.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace wentra {

/// What a backslash introduces: what it stands for, and how many units behind the backslash it
/// takes.
struct Slashed {
    char16_t unit = 0;
    std::size_t length = 0;
};

namespace detail {

/// The values of hexadecimal digits; 16 for what is none.
inline constexpr auto digitValues = [] {
    constexpr std::u16string_view lower = u"0123456789abcdef";
    constexpr std::u16string_view upper = u"0123456789ABCDEF";
    std::array<std::uint8_t, 128> values{};
    values.fill(16);
    for (std::uint8_t value = 0; value < 16; ++value) {
        values[lower[value]] = values[upper[value]] = value;
    }
    return values;
}();

/// The digits that the text begins with as a number.
inline Slashed digits(std::u16string_view text, std::size_t most, unsigned base) {
    Slashed number;
    const std::size_t end = std::min(most, text.size());
    while (number.length < end && text[number.length] < digitValues.size() &&
           digitValues[text[number.length]] < base) {
        const unsigned digit = digitValues[text[number.length]];
        number.unit = static_cast<char16_t>(number.unit * base + digit);
        ++number.length;
    }
    return number;
}

} // namespace detail

/// A UTF-16 unit by up to four hexadecimal digits behind a letter, with which the text begins.
inline Slashed slashedUnit(std::u16string_view text) {
    Slashed unit = detail::digits(text.substr(1), 4, 16);
    ++unit.length;
    return unit;
}

/// What stands behind a backslash, which is not empty: a letter of C, up to three octal digits of
/// the NeXTSTEP encoding, or U and up to four hexadecimal digits of UTF-16; any other character
/// stands for itself.
[[nodiscard]] Slashed slashed(std::u16string_view text);

/// The text with what backslashes introduce replaced by what it stands for. A backslash at the end
/// goes.
[[nodiscard]] std::u16string unslashed(std::u16string_view text);

} // namespace wentra
