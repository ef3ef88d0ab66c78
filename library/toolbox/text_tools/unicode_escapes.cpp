// A few straight passes each way.
#include "library/toolbox/text_tools/unicode_escapes.hpp"

#include "library/common/occurrences.hpp"
#include "library/common/slashed_text.hpp"
#include "library/common/surrogates.hpp"
#include "library/common/text_parts.hpp"

#include <algorithm>

namespace wentra::toolbox {
namespace {

/// Writes the unit's escape and gives where it ends.
char16_t* writeEscape(char16_t unit, char16_t* place) {
    constexpr std::u16string_view digits = u"0123456789abcdef";
    *place++ = u'\\';
    *place++ = u'u';
    unsigned shift = unit < 0x10 ? 4U : unit < 0x100 ? 8U : unit < 0x1000 ? 12U : 16U;
    while (shift > 0) {
        shift -= 4;
        *place++ = digits[(static_cast<unsigned>(unit) >> shift) & 0xFU];
    }
    return place;
}

/// The text with \U for each \u.
std::u16string capitalized(std::u16string_view text) {
    std::u16string result(text);
    if (!text.empty()) {
        std::transform(text.begin() + 1, text.end(), text.begin(), result.begin() + 1,
                       [](char16_t unit, char16_t before) {
                           return before == u'\\' && unit == u'u' ? u'U' : unit;
                       });
    }
    return result;
}

/// What stands before the first quotation mark without a backslash; nothing when the last backslash
/// takes the mark that would follow the text.
std::optional<std::u16string_view> quotedPart(std::u16string_view text) {
    std::size_t end = 0;
    while (end < text.size() && text[end] != u'"') {
        end += text[end] == u'\\' ? 2U : 1U;
    }
    return end > text.size() ? std::nullopt : std::optional(text.substr(0, end));
}

constexpr bool endsLineComment(char16_t unit) {
    return unit == u'\n' || unit == u'\r' || unit == 0x2028 || unit == 0x2029;
}

/// Whether what follows a text that ended early is a comment to the end, the last quotation mark
/// included.
bool isComment(std::u16string_view rest) {
    for (;;) {
        rest = trimmedAtStart(rest);
        if (!rest.starts_with(u"/*")) {
            return rest.starts_with(u"//") && std::ranges::none_of(rest, endsLineComment);
        }
        const std::size_t end = rest.find(u"*/", 2);
        if (end == rest.npos) {
            return true;
        }
        rest.remove_prefix(end + 2);
    }
}

bool hasHalfAPair(std::u16string_view text) {
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (isSurrogate(text[at])) {
            if (at + 1 == text.size() || !isSurrogatePair(text[at], text[at + 1])) {
                return true;
            }
            ++at;
        }
    }
    return false;
}

} // namespace

bool hasUnicodeEscapes(std::u16string_view text) { return text.find(u"\\u") != text.npos; }

std::u16string unicodeEscapes(std::u16string_view text) {
    constexpr std::size_t longest = 6;
    std::u16string escapes(longest * text.size(), u'\0');
    char16_t* end = escapes.data();
    for (const char16_t unit : text) {
        end = writeEscape(unit, end);
    }
    escapes.resize(static_cast<std::size_t>(end - escapes.data()));
    return escapes;
}

std::optional<std::u16string> withoutUnicodeEscapes(std::u16string_view text) {
    const std::u16string escaped = capitalized(text);
    const auto quoted = quotedPart(escaped);
    const auto rest = quoted && quoted->size() < escaped.size()
                          ? std::u16string_view(escaped).substr(quoted->size() + 1)
                          : std::u16string_view(u"//");
    if (!quoted || !isComment(rest) || hasHalfAPair(escaped)) {
        return std::nullopt;
    }
    std::u16string plain = unslashed(*quoted);
    replaceAll(plain, u"\\r\\n", u"\n");
    return plain;
}

} // namespace wentra::toolbox
