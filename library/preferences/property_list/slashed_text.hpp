// Quoted texts of old property lists.
#pragma once

#include <string>
#include <string_view>

namespace wentra::preferences {

/// The text (UTF-8) with what a backslash introduces replaced by what it stands for: the letters of
/// C, up to three octal digits of the NeXTSTEP encoding, U and up to four hexadecimal digits of
/// UTF-16; any other character stands for itself.
std::u16string unslashed(std::string_view text);

} // namespace wentra::preferences
