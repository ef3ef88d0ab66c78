// Reads the numbers written out in property lists, whatever the process's locale.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace wentra::preferences {

struct Decimal {
    double value = 0;
    std::size_t length = 0; ///< characters read, 0 when the text does not begin with a number
};

/// The number the text begins with: a sign, digits with or without a point, an exponent. Exact to
/// float precision; too large a number is infinite.
Decimal scanDecimal(std::string_view text);

/// The whole text as an integer element's content: white space around it, a sign and decimal or
/// (after 0x) hexadecimal digits. None for anything else or beyond 64 bits.
std::optional<double> integerValue(std::string_view text);

/// The whole text as a real element's content: white space around a decimal number, or a name of
/// infinity or of not-a-number. None for anything else.
std::optional<double> realValue(std::string_view text);

} // namespace wentra::preferences
