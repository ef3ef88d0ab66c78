// Resolves backslashes.
#include "library/common/slashed_text.hpp"

#include <algorithm>

namespace wentra {
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

/// 16 or more for what is no digit.
constexpr unsigned digit(char16_t unit) {
    if (unit >= u'0' && unit <= u'9') {
        return unit - u'0';
    }
    const auto lower = static_cast<char16_t>(unit | 0x20U);
    return lower >= u'a' && lower <= u'f' ? lower - u'a' + 10U : 16U;
}

Number number(std::u16string_view text, std::size_t most, unsigned base) {
    Number read;
    for (const char16_t unit : text.substr(0, most)) {
        if (digit(unit) >= base) {
            break;
        }
        read.value = static_cast<char16_t>(read.value * base + digit(unit));
        ++read.digits;
    }
    return read;
}

char16_t nextStepCharacter(char16_t code) {
    code &= 0xFF;
    return code < 0x80 ? code : nextStepCharacters[code - 0x80];
}

/// Appends what follows a backslash, and gives how much of the text that was.
std::size_t appendSlashed(std::u16string_view text, std::u16string& result) {
    constexpr std::u16string_view letters = u"abfnrtv";
    constexpr std::u16string_view meanings = u"\a\b\f\n\r\t\v";
    if (text.starts_with(u'U')) {
        const Number unit = number(text.substr(1), 4, 16);
        result += unit.value;
        return 1 + unit.digits;
    }
    if (const Number octal = number(text, 3, 8); octal.digits > 0) {
        result += nextStepCharacter(octal.value);
        return octal.digits;
    }
    if (const std::size_t letter = letters.find(text[0]); letter != letters.npos) {
        result += meanings[letter];
        return 1;
    }
    return 0; // stands for itself
}

} // namespace

std::u16string unslashed(std::u16string_view text) {
    std::u16string result;
    result.reserve(text.size());
    std::size_t standing = 0; // a character that stands for itself, a backslash perhaps
    while (!text.empty()) {
        const std::size_t plain = std::min(text.find(u'\\', standing), text.size());
        result += text.substr(0, plain);
        text.remove_prefix(std::min(plain + 1, text.size()));
        const std::size_t slashed = text.empty() ? 0 : appendSlashed(text, result);
        text.remove_prefix(slashed);
        standing = slashed == 0 ? 1 : 0;
    }
    return result;
}

} // namespace wentra
