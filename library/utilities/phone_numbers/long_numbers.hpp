// Numbers of thirteen digits, which telephone numbers with their country are.
#pragma once

#include <string_view>
#include <vector>

namespace wentra::utilities {

/// Every number of thirteen digits in the text, each once, in the order in which they come first;
/// a longer run of digits is taken apart from its start. Left out are those that begin with 15, 16
/// or 17: times in milliseconds. Views of the text.
[[nodiscard]] std::vector<std::u16string_view> longNumbers(std::u16string_view text);

} // namespace wentra::utilities
