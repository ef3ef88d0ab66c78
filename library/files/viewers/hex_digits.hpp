// Bytes as people read them.
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace wentra::files {

/// Two lower-case hexadecimal digits.
[[nodiscard]] constexpr std::array<char16_t, 2> hexDigits(unsigned char byte) {
    constexpr std::u16string_view digits = u"0123456789abcdef";
    return {digits[byte >> 4U], digits[byte & 0xFU]};
}

} // namespace wentra::files
