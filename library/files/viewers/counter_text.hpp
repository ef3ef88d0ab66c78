// What the counter of a search says.
#pragma once

#include "library/common/text_encoding.hpp"

#include <string>

namespace wentra::files {

/// How many matches there are.
[[nodiscard]] inline std::u16string matchCount(unsigned long count) {
    return utf16FromUtf8(std::to_string(count)) + u"个匹配";
}

/// The same, and which of them is shown, counted from 0.
[[nodiscard]] inline std::u16string matchCount(unsigned long count, unsigned long index) {
    return matchCount(count) + u" (当前第" + utf16FromUtf8(std::to_string(index + 1)) + u"个)";
}

} // namespace wentra::files
