// The words that the user's texts list.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace wentra::blocking {

/// The words that a comma ends, without line feeds: what follows the last comma is none, and of a
/// word with "#" in it only what is behind the last one counts.
[[nodiscard]] std::vector<std::u16string> wordsEndedByCommas(std::u16string_view text);

/// The parts between the commas as they stand, white space included. They are views of the text.
[[nodiscard]] std::vector<std::u16string_view> wordsBetweenCommas(std::u16string_view text);

} // namespace wentra::blocking
