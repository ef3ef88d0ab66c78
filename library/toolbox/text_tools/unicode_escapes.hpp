// Text as escapes of its UTF-16 units, and back.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace wentra::toolbox {

/// Whether there is a backslash with a u behind it.
[[nodiscard]] bool hasUnicodeEscapes(std::u16string_view text);

/// Each UTF-16 unit as \u and its number in hexadecimal digits, lower-case and without zeros before
/// it: a line feed becomes \ua.
[[nodiscard]] std::u16string unicodeEscapes(std::u16string_view text);

/// The text with its escapes resolved: what an old property list reads where the text stands in
/// quotation marks and every \u is \U. So an escape has at most four digits, and C's escapes are
/// resolved, too. What is left of the four characters \r\n becomes a line feed. Nothing when that
/// is no text: a quotation mark within ends it early, a backslash at the end leaves it open, and
/// half a pair of surrogates has no bytes in a file.
[[nodiscard]] std::optional<std::u16string> withoutUnicodeEscapes(std::u16string_view text);

} // namespace wentra::toolbox
