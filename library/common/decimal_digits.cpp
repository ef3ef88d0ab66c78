// Each script's digits follow one another from its zero on.
#include "library/common/decimal_digits.hpp"

#include "library/common/surrogates.hpp"

#include <algorithm>
#include <array>

namespace wentra {
namespace {

/// The characters of Unicode 14 that have the general category Nd and the value 0.
constexpr std::array<char32_t, 66> zeros{
    '0',     0x660,   0x6F0,   0x7C0,   0x966,   0x9E6,   0xA66,   0xAE6,   0xB66,   0xBE6,
    0xC66,   0xCE6,   0xD66,   0xDE6,   0xE50,   0xED0,   0xF20,   0x1040,  0x1090,  0x17E0,
    0x1810,  0x1946,  0x19D0,  0x1A80,  0x1A90,  0x1B50,  0x1BB0,  0x1C40,  0x1C50,  0xA620,
    0xA8D0,  0xA900,  0xA9D0,  0xA9F0,  0xAA50,  0xABF0,  0xFF10,  0x104A0, 0x10D30, 0x11066,
    0x110F0, 0x11136, 0x111D0, 0x112F0, 0x11450, 0x114D0, 0x11650, 0x116C0, 0x11730, 0x118E0,
    0x11950, 0x11C50, 0x11D50, 0x11DA0, 0x16A60, 0x16AC0, 0x16B50, 0x1D7CE, 0x1D7D8, 0x1D7E2,
    0x1D7EC, 0x1D7F6, 0x1E140, 0x1E2F0, 0x1E950, 0x1FBF0};

bool isDecimalDigit(char32_t character) {
    if (character < 0x80) {
        return character >= '0' && character <= '9';
    }
    const auto* const next = std::ranges::upper_bound(zeros, character);
    return character - *(next - 1) < 10;
}

/// The character that begins the text, which gets shorter by it. Half a pair counts by itself.
char32_t takeCharacter(std::u16string_view& text) {
    const char16_t first = text[0];
    const bool isPair = text.size() > 1 && isSurrogatePair(first, text[1]);
    const char32_t character = isPair ? characterOf(first, text[1]) : first;
    text.remove_prefix(isPair ? 2 : 1);
    return character;
}

} // namespace

bool holdsDecimalDigits(std::u16string_view text, std::size_t count) {
    while (count > 0 && !text.empty()) {
        if (isDecimalDigit(takeCharacter(text))) {
            --count;
        }
    }
    return count == 0;
}

std::size_t decimalDigitSize(std::u16string_view text) {
    const std::size_t size = text.size();
    return size > 0 && isDecimalDigit(takeCharacter(text)) ? size - text.size() : 0;
}

} // namespace wentra
