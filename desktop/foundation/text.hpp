// Text between the platform's UTF-16 and UTF-8.
#pragma once

#include "bindings/foundation/string.hpp"

#include "desktop/surrogates.hpp"

#include <string>
#include <string_view>

namespace desktop {

/// Whether a byte of UTF-8 is not the first of its character.
[[nodiscard]] constexpr bool continuesCharacter(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

/// How many units there are before the first lone surrogate.
[[nodiscard]] std::size_t wellFormedLength(std::u16string_view text);
/// Whether no surrogate of the text stands alone.
[[nodiscard]] inline bool isWellFormed(std::u16string_view text) {
    return wellFormedLength(text) == text.size();
}

/// The text as UTF-8, each lone surrogate as U+FFFD.
[[nodiscard]] std::string toUtf8(std::u16string_view text);
[[nodiscard]] inline std::string toUtf8(ns::String text) { return toUtf8(text.utf16()); }

} // namespace desktop
