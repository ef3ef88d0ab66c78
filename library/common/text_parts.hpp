// Takes text apart at separators and puts it together again.
#pragma once

#include "library/common/white_space.hpp"

#include <algorithm>
#include <concepts>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace wentra {

/// The parts of the text between the units that separate, empty parts included: one more than there
/// are separators. The parts are views of the text.
[[nodiscard]] constexpr std::vector<std::u16string_view>
split(std::u16string_view text, std::predicate<char16_t> auto separates) {
    std::vector<std::u16string_view> parts;
    for (;;) {
        const auto length =
            static_cast<std::size_t>(std::ranges::find_if(text, separates) - text.begin());
        parts.push_back(text.substr(0, length));
        if (length == text.size()) {
            return parts;
        }
        text.remove_prefix(length + 1);
    }
}

/// The same for one unit that separates.
[[nodiscard]] constexpr std::vector<std::u16string_view> split(std::u16string_view text,
                                                               char16_t separator) {
    return split(text, [separator](char16_t unit) { return unit == separator; });
}

/// The text's lines without their ends, empty lines included; each newline character ends one, so
/// that there is an empty line within "\r\n".
[[nodiscard]] inline std::vector<std::u16string_view> splitLines(std::u16string_view text) {
    return split(text, isNewline);
}

/// The parts in their order, the separator between each two.
[[nodiscard]] std::u16string joined(std::span<const std::u16string> parts,
                                    std::u16string_view separator);

/// The text from its first unit on that is no white space.
[[nodiscard]] std::u16string_view trimmedAtStart(std::u16string_view text);

} // namespace wentra
