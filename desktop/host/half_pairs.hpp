// Halves of surrogate pairs in the strings of JSON values: three bytes each, where UTF-8 has none.
#pragma once

#include "bindings/foundation/string.hpp"

#include <string>
#include <string_view>

namespace desktop::host {

/// The text as UTF-8, with three bytes for each surrogate that stands alone.
[[nodiscard]] std::string withHalfPairs(std::u16string_view text);
[[nodiscard]] inline std::string withHalfPairs(ns::String text) {
    return withHalfPairs(text.utf16());
}
/// The text that `withHalfPairs` wrote; nil when the bytes are neither UTF-8 nor such.
[[nodiscard]] ns::String toText(std::string_view bytes);

/// The three bytes of a surrogate that stands alone.
[[nodiscard]] std::string bytesOfHalf(char16_t surrogate);
/// Where the first such bytes begin, from `from` on; npos without any.
[[nodiscard]] std::size_t findHalf(std::string_view bytes, std::size_t from = 0);
/// The surrogate whose bytes begin there.
[[nodiscard]] char16_t halfAt(std::string_view bytes, std::size_t at);
inline constexpr std::size_t bytesOfAHalf = 3;

} // namespace desktop::host
