// Percent-encodes text for URLs.
#pragma once

#include <string>
#include <string_view>

namespace wentra {

/// The ASCII punctuation that stays as it is, beside letters and digits.
namespace percent {
/// What a URL's query allows (RFC 3986), as the platform's URLQueryAllowedCharacterSet has it.
inline constexpr std::string_view queryAllowed = "!$&'()*+,-./:;=?@_~";
} // namespace percent

/// The UTF-16 text as UTF-8 with each byte written as %XX, except ASCII letters, digits and the
/// characters of `kept`. Lone surrogates are written as U+FFFD.
std::string percentEncoded(std::u16string_view text, std::string_view kept);

} // namespace wentra
