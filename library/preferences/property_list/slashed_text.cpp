// Resolves backslashes.
#include "library/preferences/property_list/slashed_text.hpp"

#include "library/common/text_encoding.hpp"

#include <algorithm>
#include <charconv>

namespace wentra::preferences {
namespace {

using namespace std::string_view_literals;

/// The upper half of the NeXTSTEP encoding.
constexpr std::u16string_view nextStepCharacters = u"\u00A0ÀÁÂÃÄÅÇÈÉÊËÌÍÎÏÐÑÒÓÔÕÖÙÚÛÜÝÞµ×÷"
                                                   u"©¡¢£⁄¥ƒ§¤’“«‹›ﬁﬂ®–†‡·¦¶•‚„”»…‰¬¿"
                                                   u"¹ˋ´ˆ˜¯˘˙¨²˚¸³˝˛ˇ—±¼½¾àáâãäåçèéêë"
                                                   u"ìÆíªîïðñŁØŒºòóôõöæùúûıüýłøœßþÿ\uFFFD\uFFFD"sv;
static_assert(nextStepCharacters.size() == 128);

struct Number {
    char16_t value = 0;
    std::size_t digits = 0;
};

Number number(std::string_view text, std::size_t most, int base) {
    unsigned value = 0;
    const char* const end = text.data() + std::min(most, text.size());
    const char* const found = std::from_chars(text.data(), end, value, base).ptr;
    return {static_cast<char16_t>(value), static_cast<std::size_t>(found - text.data())};
}

char16_t nextStepCharacter(char16_t code) {
    code &= 0xFF;
    return code < 0x80 ? code : nextStepCharacters[code - 0x80];
}

/// Appends what follows a backslash, and gives how much of the text that was.
std::size_t appendSlashed(std::string_view text, std::u16string& result) {
    constexpr std::string_view letters = "abfnrtv";
    constexpr std::u16string_view meanings = u"\a\b\f\n\r\t\v";
    if (const Number octal = number(text, 3, 8); octal.digits > 0) {
        result += nextStepCharacter(octal.value);
        return octal.digits;
    }
    if (text.starts_with('U')) {
        const Number unit = number(text.substr(1), 4, 16);
        result += unit.value;
        return 1 + unit.digits;
    }
    if (const std::size_t letter = letters.find(text[0]); letter != letters.npos) {
        result += meanings[letter];
        return 1;
    }
    return 0; // stands for itself
}

} // namespace

std::u16string unslashed(std::string_view text) {
    std::u16string result;
    std::size_t standing = 0; // a character that stands for itself, a backslash perhaps
    while (!text.empty()) {
        const std::size_t plain = std::min(text.find('\\', standing), text.size());
        result += utf16FromUtf8(text.substr(0, plain));
        text.remove_prefix(std::min(plain + 1, text.size()));
        const std::size_t slashed = text.empty() ? 0 : appendSlashed(text, result);
        text.remove_prefix(slashed);
        standing = slashed == 0 ? 1 : 0;
    }
    return result;
}

} // namespace wentra::preferences
