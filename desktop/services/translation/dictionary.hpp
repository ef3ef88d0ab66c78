// The translation service's small dictionary.
#pragma once

#include <string>
#include <string_view>

namespace desktop::services::translation {

/// A language of the dictionary.
enum class Language { chinese, english };

/// Chinese when there is any Chinese character in the text, which is UTF-8.
Language languageOf(std::string_view text);

/// One line in the other language. Case, surrounding spaces and a full stop or exclamation mark at
/// the end make no difference; what the dictionary does not know comes back between ⟦ and ⟧, what
/// is already in that language unchanged.
std::string translated(std::string_view line, Language to);

} // namespace desktop::services::translation
