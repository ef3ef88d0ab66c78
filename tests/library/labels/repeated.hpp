// Builds the long texts that show an algorithm to be linear by finishing at all.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace wentra::labels::test {

/// As many UTF-16 units as ten megabytes hold.
inline constexpr std::size_t tenMegabytes = 10'000'000 / sizeof(char16_t);

/// The part, over and over, up to about the given number of units.
inline std::u16string repeated(std::u16string_view part, std::size_t units = tenMegabytes) {
    std::u16string text;
    text.reserve(units);
    while (text.size() + part.size() <= units) {
        text.append(part);
    }
    return text;
}

} // namespace wentra::labels::test
