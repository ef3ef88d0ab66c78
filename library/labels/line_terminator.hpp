// Which characters the platform's regular expressions take for the end of a line.
#pragma once

namespace wentra::labels {

/// Whether "." of a regular expression refuses to match this UTF-16 unit.
constexpr bool isLineTerminator(char16_t unit) {
    return (unit >= u'\n' && unit <= u'\r') || unit == 0x0085 || unit == 0x2028 || unit == 0x2029;
}

} // namespace wentra::labels
