// Percent-encodes the bytes of UTF-8.
#include "library/common/percent_encoding.hpp"

#include "library/common/text_encoding.hpp"

namespace wentra {
namespace {

constexpr bool isLetterOrDigit(char byte) {
    return (byte >= '0' && byte <= '9') || (byte >= 'A' && byte <= 'Z') ||
           (byte >= 'a' && byte <= 'z');
}

} // namespace

std::string percentEncoded(std::u16string_view text, std::string_view kept) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string encoded;
    for (const char byte : utf8FromUtf16(text)) {
        if (isLetterOrDigit(byte) || kept.find(byte) != kept.npos) {
            encoded += byte;
        } else {
            const auto value = static_cast<unsigned char>(byte);
            encoded += {'%', digits[value >> 4U], digits[value & 0xFU]};
        }
    }
    return encoded;
}

} // namespace wentra
