// Converts between the Unicode encodings that property lists are written in.
#pragma once

#include <string>
#include <string_view>

namespace wentra::startup {

/// Whether every byte is below 0x80.
bool isAscii(std::string_view bytes);

/// Whether the bytes are well-formed UTF-8 (no overlong forms, no surrogates).
bool isUtf8(std::string_view bytes);

/// The text of UTF-8 bytes; each byte that is not part of well-formed UTF-8 becomes U+FFFD.
std::u16string utf16FromUtf8(std::string_view bytes);

enum class ByteOrder { littleEndian, bigEndian };

/// The text of UTF-16 bytes, kept as it is, lone surrogates included. An odd last byte is ignored.
std::u16string utf16FromBytes(std::string_view bytes, ByteOrder order);

/// The text of UTF-16 bytes as UTF-8, written to `storage`, which only ever grows. Lone surrogates
/// become U+FFFD and an odd last byte is ignored.
std::string_view convertToUtf8(std::string_view bytes, ByteOrder order, std::string& storage);

/// Appends a character (at most U+10FFFF) as UTF-8.
void appendUtf8(char32_t character, std::string& utf8);

} // namespace wentra::startup
