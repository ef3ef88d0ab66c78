// Texts of letters that have no relations but the case of ASCII's.
#pragma once

#include <string_view>

namespace wentra {

/// Whether the text has nothing but ASCII, Chinese characters and punctuation: units that stand for
/// themselves, and of which only ASCII's letters have a case. For such texts the platform's rules
/// of case come down to `LetterCase::ignored`.
[[nodiscard]] bool isPlainText(std::u16string_view text);

} // namespace wentra
