// Decodes one character of UTF-8.
#pragma once

#include "library/common/surrogates.hpp"

#include <cstddef>
#include <string_view>

namespace wentra {

struct Utf8Character {
    char32_t character = 0;
    std::size_t size = 0; ///< bytes it takes, 0 when they are not well-formed
};

/// The character the bytes begin with; there must be at least one byte. Overlong forms, surrogates
/// and what lies beyond U+10FFFF are not well-formed.
constexpr Utf8Character decodeUtf8(std::string_view bytes) {
    // The six bits a continuation byte brings; more than those when it is none.
    const auto continuation = [bytes](std::size_t index) -> char32_t {
        return static_cast<unsigned char>(bytes[index]) ^ 0x80U;
    };
    const char32_t first = static_cast<unsigned char>(bytes[0]);
    if (first < 0x80) {
        return {first, 1};
    }
    if (first < 0xE0 && bytes.size() >= 2) {
        const char32_t second = continuation(1);
        const bool sound = second < 0x40 && first >= 0xC2;
        return sound ? Utf8Character{(first & 0x1F) << 6 | second, 2} : Utf8Character{};
    }
    if (first < 0xF0 && bytes.size() >= 3) {
        const char32_t second = continuation(1);
        const char32_t third = continuation(2);
        const char32_t character = (first & 0x0F) << 12 | second << 6 | third;
        const bool sound = (second | third) < 0x40 && character >= 0x800 && !isSurrogate(character);
        return sound ? Utf8Character{character, 3} : Utf8Character{};
    }
    if (first >= 0xF8 || bytes.size() < 4) {
        return {};
    }
    const char32_t second = continuation(1);
    const char32_t third = continuation(2);
    const char32_t fourth = continuation(3);
    const char32_t character = (first & 0x07) << 18 | second << 12 | third << 6 | fourth;
    const bool sound =
        (second | third | fourth) < 0x40 && character >= 0x10000 && character <= 0x10FFFF;
    return sound ? Utf8Character{character, 4} : Utf8Character{};
}

} // namespace wentra
