// Converts between the Unicode encodings.
#pragma once

#include <string>
#include <string_view>

namespace wentra {

enum class Encoding { utf8, utf16BigEndian, utf16LittleEndian };

/// Whether every byte is below 0x80.
bool isAscii(std::string_view bytes);

/// Whether the bytes are well-formed UTF-8 (no overlong forms, no surrogates).
bool isUtf8(std::string_view bytes);

/// The text of UTF-8 bytes; each byte that is not part of well-formed UTF-8 becomes U+FFFD.
std::u16string utf16FromUtf8(std::string_view bytes);

/// The text of UTF-16 bytes, kept as it is, lone surrogates included. An odd last byte is ignored.
std::u16string utf16FromBytes(std::string_view bytes, Encoding encoding);

/// UTF-16 bytes, most significant first.
std::string bigEndianUtf16(std::u16string_view text);

/// The UTF-16 text as UTF-8; lone surrogates become U+FFFD.
std::string utf8FromUtf16(std::u16string_view text);

/// Appends a character (at most U+10FFFF) as UTF-8.
void appendUtf8(char32_t character, std::string& utf8);

} // namespace wentra
