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

constexpr bool isSurrogate(char32_t unit) { return unit >= 0xD800 && unit <= 0xDFFF; }

constexpr char32_t byteAt(std::string_view bytes, std::size_t index) {
    return static_cast<unsigned char>(bytes[index]);
}

// The bits a continuation byte brings, or some beyond them when it is none.
constexpr char32_t continuation(std::string_view bytes, std::size_t index) {
    return byteAt(bytes, index) ^ 0x80;
}

// The bytes must not be empty.
constexpr Decoded decode(std::string_view bytes) {
    const char32_t first = byteAt(bytes, 0);
    if (first < 0x80)
        return {first, 1};
    if (first < 0xE0 && bytes.size() >= 2) {
        const char32_t second = continuation(bytes, 1);
        const char32_t character = (first & 0x1F) << 6 | second;
        return second < 0x40 && first >= 0xC2 ? Decoded{character, 2} : malformed;
    }
    if (first < 0xF0 && bytes.size() >= 3) {
        const char32_t second = continuation(bytes, 1);
        const char32_t third = continuation(bytes, 2);
        const char32_t character = (first & 0x0F) << 12 | second << 6 | third;
        const bool sound = (second | third) < 0x40 && character >= 0x800 && !isSurrogate(character);
        return sound ? Decoded{character, 3} : malformed;
    }
    if (bytes.size() < 4)
        return malformed;
    const char32_t second = continuation(bytes, 1);
    const char32_t third = continuation(bytes, 2);
    const char32_t fourth = continuation(bytes, 3);
    const char32_t character = (first & 0x07) << 18 | second << 12 | third << 6 | fourth;
    const bool sound = (second | third | fourth) < 0x40 && first < 0xF8 && character >= 0x10000 &&
                       character <= 0x10FFFF;
    return sound ? Decoded{character, 4} : malformed;
}

constexpr char16_t unitAt(std::string_view bytes, std::size_t index, ByteOrder order) {
    const unsigned unit = littleEndian<std::uint16_t>(bytes.data() + 2 * index);
    return static_cast<char16_t>(order == ByteOrder::bigEndian ? unit << 8 | unit >> 8 : unit);
}

void appendUtf16(char32_t character, std::u16string& utf16) {
    if (character >= 0x10000) {
        utf16.push_back(static_cast<char16_t>(0xD7C0 + (character >> 10)));
        character = 0xDC00 + (character & 0x3FF);
    }
    utf16.push_back(static_cast<char16_t>(character));
}

// Writes the character at `out`, which has room for it, and gives the place after it.
constexpr char* writeUtf8(char32_t character, char* out) {
    const auto low = [character](int shift) {
        return static_cast<char>(0x80 | (character >> shift & 0x3F));
    };
    if (character < 0x80) {
        out[0] = static_cast<char>(character);
        return out + 1;
    }
    if (character < 0x800) {
        out[0] = static_cast<char>(0xC0 | character >> 6);
        out[1] = low(0);
        return out + 2;
    }
    if (character < 0x10000) {
        out[0] = static_cast<char>(0xE0 | character >> 12);
        out[1] = low(6);
        out[2] = low(0);
        return out + 3;
    }
    out[0] = static_cast<char>(0xF0 | character >> 18);
    out[1] = low(12);
    out[2] = low(6);
    out[3] = low(0);
    return out + 4;
}

} // namespace

bool isAscii(std::string_view bytes) {
    std::uint64_t seen = 0;
    for (; bytes.size() >= 8; bytes.remove_prefix(8))
        seen |= littleEndian<std::uint64_t>(bytes.data());
    for (const char byte : bytes)
        seen |= static_cast<unsigned char>(byte);
    return (seen & highBits) == 0;
}

bool isUtf8(std::string_view bytes) {
    while (!bytes.empty()) {
        std::size_t size = 8;
        if (bytes.size() < 8 || (littleEndian<std::uint64_t>(bytes.data()) & highBits) != 0)
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

std::string_view convertToUtf8(std::string_view bytes, ByteOrder order, std::string& storage) {
    const std::size_t count = bytes.size() / 2;
    if (storage.size() < 3 * count)
        storage.resize(3 * count);
    char* out = storage.data();
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
    return {storage.data(), static_cast<std::size_t>(out - storage.data())};
}

void appendUtf8(char32_t character, std::string& utf8) {
    char bytes[4];
    utf8.append(bytes, writeUtf8(character, bytes));
}

} // namespace wentra::startup
