// Decodes and encodes UTF-8 and UTF-16, one character at a time.
#include "library/startup/text_encoding.hpp"

#include "library/startup/byte_word.hpp"

#include <cstddef>

namespace wentra::startup {
namespace {

constexpr std::uint64_t highBits = 0x8080808080808080U;
constexpr char32_t replacementCharacter = 0xFFFD;

struct Decoded {
    char32_t character;
    std::size_t size; // 0: the bytes are not well-formed
};

constexpr Decoded malformed{replacementCharacter, 0};

constexpr bool isSurrogate(char32_t unit) {
    return unit >= 0xD800 && unit <= 0xDFFF;
}

constexpr char32_t byteAt(std::string_view bytes, std::size_t index) {
    return static_cast<unsigned char>(bytes[index]);
}

constexpr bool isContinuation(char32_t byte) {
    return (byte & 0xC0) == 0x80;
}

// The bytes must not be empty.
constexpr Decoded decode(std::string_view bytes) {
    const char32_t first = byteAt(bytes, 0);
    if (first < 0x80)
        return {first, 1};
    const std::size_t size = first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
    if (first < 0xC2 || first > 0xF4 || bytes.size() < size)
        return malformed;
    char32_t character = first & (0x7FU >> size);
    for (std::size_t index = 1; index < size; ++index) {
        if (!isContinuation(byteAt(bytes, index)))
            return malformed;
        character = character << 6 | (byteAt(bytes, index) & 0x3F);
    }
    const bool overlong = (size == 3 && character < 0x800) || (size == 4 && character < 0x10000);
    if (overlong || isSurrogate(character) || character > 0x10FFFF)
        return malformed;
    return {character, size};
}

constexpr char16_t unitAt(std::string_view bytes, std::size_t index, ByteOrder order) {
    const char32_t first = byteAt(bytes, 2 * index);
    const char32_t second = byteAt(bytes, 2 * index + 1);
    return static_cast<char16_t>(order == ByteOrder::bigEndian ? first << 8 | second
                                                               : second << 8 | first);
}

void appendUtf16(char32_t character, std::u16string& utf16) {
    if (character >= 0x10000) {
        utf16.push_back(static_cast<char16_t>(0xD7C0 + (character >> 10)));
        character = 0xDC00 + (character & 0x3FF);
    }
    utf16.push_back(static_cast<char16_t>(character));
}

// Writes the character at `out`, which has room for it, and gives the place after it.
char* writeUtf8(char32_t character, char* out) {
    const auto put = [&out](char32_t byte) { *out++ = static_cast<char>(byte); };
    if (character < 0x80) {
        put(character);
    } else if (character < 0x800) {
        put(0xC0 | character >> 6);
        put(0x80 | (character & 0x3F));
    } else if (character < 0x10000) {
        put(0xE0 | character >> 12);
        put(0x80 | (character >> 6 & 0x3F));
        put(0x80 | (character & 0x3F));
    } else {
        put(0xF0 | character >> 18);
        put(0x80 | (character >> 12 & 0x3F));
        put(0x80 | (character >> 6 & 0x3F));
        put(0x80 | (character & 0x3F));
    }
    return out;
}

} // namespace

bool isAscii(std::string_view bytes) {
    std::uint64_t seen = 0;
    for (; bytes.size() >= 8; bytes.remove_prefix(8))
        seen |= littleEndian<8>(bytes.data());
    for (const char byte : bytes)
        seen |= static_cast<unsigned char>(byte);
    return (seen & highBits) == 0;
}

bool isUtf8(std::string_view bytes) {
    while (!bytes.empty()) {
        std::size_t size = 8;
        if (bytes.size() < 8 || (littleEndian<8>(bytes.data()) & highBits) != 0)
            size = decode(bytes).size;
        if (size == 0)
            return false;
        bytes.remove_prefix(size);
    }
    return true;
}

std::u16string utf16FromUtf8(std::string_view bytes) {
    std::u16string utf16;
    utf16.reserve(bytes.size());
    while (!bytes.empty()) {
        const Decoded decoded = decode(bytes);
        appendUtf16(decoded.character, utf16);
        bytes.remove_prefix(decoded.size == 0 ? 1 : decoded.size);
    }
    return utf16;
}

std::u16string utf16FromBytes(std::string_view bytes, ByteOrder order) {
    std::u16string utf16(bytes.size() / 2, u'\0');
    for (std::size_t index = 0; index < utf16.size(); ++index)
        utf16[index] = unitAt(bytes, index, order);
    return utf16;
}

void convertToUtf8(std::string_view bytes, ByteOrder order, std::string& utf8) {
    const std::size_t count = bytes.size() / 2;
    utf8.resize(3 * count);
    char* out = utf8.data();
    for (std::size_t index = 0; index < count; ++index) {
        char32_t character = unitAt(bytes, index, order);
        if (isSurrogate(character)) {
            const char32_t next = index + 1 < count ? unitAt(bytes, index + 1, order) : 0;
            const bool paired = character < 0xDC00 && next >= 0xDC00 && next <= 0xDFFF;
            character = paired ? 0x10000 + ((character - 0xD800) << 10) + (next - 0xDC00)
                               : replacementCharacter;
            index += paired ? 1 : 0;
        }
        out = writeUtf8(character, out);
    }
    utf8.resize(static_cast<std::size_t>(out - utf8.data()));
}

void appendUtf8(char32_t character, std::string& utf8) {
    char bytes[4];
    utf8.append(bytes, writeUtf8(character, bytes));
}

} // namespace wentra::startup
