// Digits of every script.
#pragma once

#include <cstddef>
#include <string_view>

namespace wentra {

/// Whether at least so many characters of the text are decimal digits, those that "\d" of a regular
/// expression matches: Unicode's general category Nd.
[[nodiscard]] bool holdsDecimalDigits(std::u16string_view text, std::size_t count);

/// How many units the digit takes that the text begins with; 0 when it begins with none.
[[nodiscard]] std::size_t decimalDigitSize(std::u16string_view text);

} // namespace wentra
