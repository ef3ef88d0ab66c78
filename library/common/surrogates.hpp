// The halves of characters that take two UTF-16 units.
#pragma once

namespace wentra {

constexpr bool isSurrogate(char32_t unit) { return unit >= 0xD800 && unit <= 0xDFFF; }

/// Whether the two units stand for one character.
constexpr bool isSurrogatePair(char16_t first, char16_t second) {
    return (first & 0xFC00U) == 0xD800U && (second & 0xFC00U) == 0xDC00U;
}

/// The character that a pair stands for.
constexpr char32_t characterOf(char16_t first, char16_t second) {
    return 0x10000U + ((first & 0x3FFU) << 10U) + (second & 0x3FFU);
}

} // namespace wentra
