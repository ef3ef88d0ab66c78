// Resolves backslashes.
#include "library/common/slashed_text.hpp"

namespace wentra {
namespace {

using namespace std::string_view_literals;

/// The upper half of the NeXTSTEP encoding.
constexpr std::u16string_view nextStepCharacters = u"\u00A0ÀÁÂÃÄÅÇÈÉÊËÌÍÎÏÐÑÒÓÔÕÖÙÚÛÜÝÞµ×÷"
                                                   u"©¡¢£⁄¥ƒ§¤’“«‹›ﬁﬂ®–†‡·¦¶•‚„”»…‰¬¿"
                                                   u"¹ˋ´ˆ˜¯˘˙¨²˚¸³˝˛ˇ—±¼½¾àáâãäåçèéêë"
                                                   u"ìÆíªîïðñŁØŒºòóôõöæùúûıüýłøœßþÿ\uFFFD\uFFFD"sv;
static_assert(nextStepCharacters.size() == 128);

char16_t nextStepCharacter(char16_t code) {
    code &= 0xFF;
    return code < 0x80 ? code : nextStepCharacters[code - 0x80];
}

} // namespace

Slashed slashed(std::u16string_view text) {
    constexpr std::u16string_view letters = u"abfnrtv";
    constexpr std::u16string_view meanings = u"\a\b\f\n\r\t\v";
    if (text[0] == u'U') {
        return slashedUnit(text);
    }
    if (const Slashed octal = detail::digits(text, 3, 8); octal.length > 0) {
        return {nextStepCharacter(octal.unit), octal.length};
    }
    const std::size_t letter = letters.find(text[0]);
    return {letter == letters.npos ? text[0] : meanings[letter], 1};
}

std::u16string unslashed(std::u16string_view text) {
    std::u16string result;
    result.reserve(text.size());
    while (!text.empty()) {
        const std::size_t plain = std::min(text.find(u'\\'), text.size());
        result += text.substr(0, plain);
        text.remove_prefix(std::min(plain + 1, text.size()));
        if (!text.empty()) {
            const auto [unit, length] = slashed(text);
            result += unit;
            text.remove_prefix(length);
        }
    }
    return result;
}

} // namespace wentra
