// The halves of characters that take two units of UTF-16.
#pragma once

namespace desktop {

[[nodiscard]] constexpr bool isHighSurrogate(char32_t unit) {
    return unit >= 0xD800 && unit < 0xDC00;
}
[[nodiscard]] constexpr bool isLowSurrogate(char32_t unit) {
    return unit >= 0xDC00 && unit < 0xE000;
}

} // namespace desktop
