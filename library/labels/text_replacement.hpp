// Decides what a label shows in place of the text it is given.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace wentra::labels {

/// The value of the text rule with this key, or nothing. The key is valid during the call only.
using TextRuleLookup = std::function<std::optional<std::u16string>(std::u16string_view key)>;

/// The text as the rules have it: each line break written as "↲".
std::u16string withLineBreakSigns(std::u16string_view text);

/// The text a label shows for the UTF-16 text given to it; nothing when it shows just that text.
///
/// First, a rule for what precedes the first ":" (on the first line only, possibly nothing)
/// replaces that part. Then a rule for the whole of the result, its line breaks written as "↲",
/// replaces it. Last, every "↲" becomes a line break, whether a rule matched or not.
std::optional<std::u16string> replacedText(std::u16string_view text, const TextRuleLookup& lookup);

} // namespace wentra::labels
