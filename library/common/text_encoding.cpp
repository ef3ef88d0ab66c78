// Decodes and encodes UTF-8 and UTF-16, one character at a time.
#include "library/common/text_encoding.hpp"

#include "library/common/byte_word.hpp"
#include "library/common/surrogates.hpp"
#include "library/common/utf8_character.hpp"

#include <cstddef>

namespace wentra {
namespace {

constexpr std::uint64_t highBits = 0x8080808080808080U;
constexpr char32_t replacementCharacter = 0xFFFD;

void appendUtf16(char32_t character, std::u16string& utf16) {
    if (character >= 0x10000) {
        utf16.push_back(static_cast<char16_t>(0xD7C0 + (character >> 10)));
        character = 0xDC00 + (character & 0x3FF);
    }
    utf16.push_back(static_cast<char16_t>(character));
}

} // namespace

bool isAscii(std::string_view bytes) {
    std::uint64_t seen = 0;
    for (; bytes.size() >= 8; bytes.remove_prefix(8)) {
        seen |= littleEndian<std::uint64_t>(bytes.data());
    }
    for (const char byte : bytes) {
        seen |= static_cast<unsigned char>(byte);
    }
    return (seen & highBits) == 0;
}

bool isUtf8(std::string_view bytes) {
    while (!bytes.empty()) {
        std::size_t size = 8;
        if (bytes.size() < 8 || (littleEndian<std::uint64_t>(bytes.data()) & highBits) != 0) {
            size = decodeUtf8(bytes).size;
        }
        if (size == 0) {
            return false;
        }
        bytes.remove_prefix(size);
    }
    return true;
}

std::u16string utf16FromUtf8(std::string_view bytes) {
    std::u16string utf16;
    utf16.reserve(bytes.size());
    while (!bytes.empty()) {
        const Utf8Character decoded = decodeUtf8(bytes);
        const bool malformed = decoded.size == 0;
        appendUtf16(malformed ? replacementCharacter : decoded.character, utf16);
        bytes.remove_prefix(malformed ? 1 : decoded.size);
    }
    return utf16;
}

std::u16string utf16FromBytes(std::string_view bytes, Encoding encoding) {
    const bool swapped = encoding == Encoding::utf16BigEndian;
    std::u16string utf16(bytes.size() / 2, u'\0');
    for (std::size_t index = 0; index < utf16.size(); ++index) {
        const unsigned unit = littleEndian<std::uint16_t>(bytes.data() + 2 * index);
        utf16[index] = static_cast<char16_t>(swapped ? unit << 8 | unit >> 8 : unit);
    }
    return utf16;
}

std::string bigEndianUtf16(std::u16string_view text) {
    std::string bytes;
    bytes.reserve(2 * text.size());
    for (const char16_t unit : text) {
        bytes.push_back(static_cast<char>(unit >> 8));
        bytes.push_back(static_cast<char>(unit & 0xFF));
    }
    return bytes;
}

std::string utf8FromUtf16(std::u16string_view text) {
    std::string utf8;
    utf8.reserve(text.size());
    for (std::size_t index = 0; index < text.size(); ++index) {
        char32_t character = text[index];
        if (isSurrogate(character)) {
            const char16_t next = index + 1 < text.size() ? text[index + 1] : u'\0';
            const bool paired = isSurrogatePair(text[index], next);
            character = paired ? characterOf(text[index], next) : replacementCharacter;
            index += paired ? 1 : 0;
        }
        appendUtf8(character, utf8);
    }
    return utf8;
}

void appendUtf8(char32_t character, std::string& utf8) {
    const auto append = [&utf8](char32_t byte) { utf8.push_back(static_cast<char>(byte)); };
    const auto appendLow = [&](int shift) { append(0x80 | (character >> shift & 0x3F)); };
    if (character < 0x80) {
        append(character);
    } else if (character < 0x800) {
        append(0xC0 | character >> 6);
        appendLow(0);
    } else if (character < 0x10000) {
        append(0xE0 | character >> 12);
        appendLow(6);
        appendLow(0);
    } else {
        append(0xF0 | character >> 18);
        appendLow(12);
        appendLow(6);
        appendLow(0);
    }
}

} // namespace wentra
