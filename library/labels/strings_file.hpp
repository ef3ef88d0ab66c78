// Turns the entries of a strings file into text rules.
#pragma once

#include <string>
#include <string_view>

namespace wentra::labels {

/// Replaces every match of the regular expression `"(.*?)"="(.*?)";` in UTF-16 text by `$1===$2`,
/// and keeps all other text. Takes linear time.
std::u16string convertStringsFile(std::u16string_view text);

} // namespace wentra::labels
