// Which UTF-16 units are white space, and which end a line.
#pragma once

namespace wentra {

/// The platform's newline characters. "." of a regular expression refuses to match them.
constexpr bool isNewline(char16_t unit) {
    return (unit >= u'\n' && unit <= u'\r') || unit == 0x0085 || unit == 0x2028 || unit == 0x2029;
}

/// The platform's white space, newlines included.
constexpr bool isWhiteSpace(char16_t unit) {
    return isNewline(unit) || unit == u'\t' || unit == u' ' || unit == 0x00A0 || unit == 0x1680 ||
           (unit >= 0x2000 && unit <= 0x200A) || unit == 0x202F || unit == 0x205F || unit == 0x3000;
}

} // namespace wentra
