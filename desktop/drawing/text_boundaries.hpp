// Where characters and words, as people know them, begin and end.
#pragma once

#include "desktop/drawing/text_layout.hpp"

namespace desktop {

/// The character with the unit at `unit`: a letter with its marks, an emoji with all of its parts,
/// CR with LF, a lone surrogate. Empty at the end of the text. No more than some hundred units
/// around are looked at, so a longer character is taken in parts. Any thread.
Stretch composedCharacter(std::u16string_view text, std::size_t unit);

/// Where the text's characters end, one after the other; the last one with the text. Any thread.
std::vector<std::size_t> composedCharacterEnds(std::u16string_view text);

/// The word that a finger on the caret before `unit` means: the one around it, else the one that
/// ends there, else the character there. Empty in an empty text. Any thread.
Stretch wordAround(std::u16string_view text, std::size_t unit);

/// Where the caret stops when it goes from `unit` word by word: behind a word to the right, before
/// one to the left, or at the text's end. Any thread.
std::size_t wordEndAfter(std::u16string_view text, std::size_t unit);
std::size_t wordStartBefore(std::u16string_view text, std::size_t unit);

} // namespace desktop
