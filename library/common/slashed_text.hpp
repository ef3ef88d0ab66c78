// Quoted texts of old property lists.
#pragma once

#include <string>
#include <string_view>

namespace wentra {

/// The text with what a backslash introduces replaced by what it stands for: the letters of
/// C, up to three octal digits of the NeXTSTEP encoding, U and up to four hexadecimal digits of
/// UTF-16; any other character stands for itself.
[[nodiscard]] std::u16string unslashed(std::u16string_view text);

} // namespace wentra
