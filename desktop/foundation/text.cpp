// Pairs of surrogates, and UTF-16 as UTF-8.
#include "desktop/foundation/text.hpp"

namespace desktop {
namespace {

bool isPairAt(std::u16string_view text, std::size_t at) {
    return isHighSurrogate(text[at]) && at + 1 < text.size() && isLowSurrogate(text[at + 1]);
}

void append(std::string& text, char32_t character) {
    const auto byte = [&text](char32_t bits) { text += static_cast<char>(bits); };
    if (character < 0x80) {
        byte(character);
        return;
    }
    if (character < 0x800) {
        byte(0xC0U | character >> 6U);
    } else {
        if (character < 0x10000) {
            byte(0xE0U | character >> 12U);
        } else {
            byte(0xF0U | character >> 18U);
            byte(0x80U | (character >> 12U & 0x3FU));
        }
        byte(0x80U | (character >> 6U & 0x3FU));
    }
    byte(0x80U | (character & 0x3FU));
}

} // namespace

std::size_t wellFormedLength(std::u16string_view text) {
    std::size_t at = 0;
    while (at < text.size()) {
        const bool isPair = isPairAt(text, at);
        if (!isPair && (isHighSurrogate(text[at]) || isLowSurrogate(text[at]))) {
            break;
        }
        at += isPair ? 2 : 1;
    }
    return at;
}

std::string toUtf8(std::u16string_view text) {
    std::string result;
    result.reserve(text.size());
    for (std::size_t at = 0; at < text.size(); ++at) {
        char32_t character = text[at];
        if (isPairAt(text, at)) {
            ++at;
            character = 0x10000 + ((character - 0xD800) << 10U) + (text[at] - 0xDC00U);
        } else if (isHighSurrogate(character) || isLowSurrogate(character)) {
            character = 0xFFFD;
        }
        append(result, character);
    }
    return result;
}

} // namespace desktop
