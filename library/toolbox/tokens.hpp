// Cuts copied text into the pieces that the word grid shows.
#pragma once

#include <string_view>
#include <vector>

namespace wentra::toolbox {

/// The pieces of UTF-16 text, in order and without gaps, as views into it: each run of ideographs
/// (一 to 龥), each run of ASCII letters and digits, and every other character by itself. What the
/// regular expression "([一-龥]+)|([a-zA-Z0-9]+)|([^a-zA-Z0-9一-龥])" matches without regard to
/// case, in one pass.
[[nodiscard]] std::vector<std::u16string_view> cutTokens(std::u16string_view text);

} // namespace wentra::toolbox
