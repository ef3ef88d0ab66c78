// Folding by ICU, and its regular expressions.
#include "desktop/foundation/text_comparison.hpp"

#include <unicode/normalizer2.h>
#include <unicode/regex.h>
#include <unicode/uchar.h>

#include <string>

namespace desktop {
namespace {

icu::UnicodeString unicode(std::u16string_view text) {
    return {text.data(), static_cast<std::int32_t>(text.size())};
}

std::u16string units(const icu::UnicodeString& text) {
    return {text.getBuffer(), static_cast<std::size_t>(text.length())};
}

std::u16string withoutMarks(std::u16string_view text) {
    UErrorCode status = U_ZERO_ERROR;
    const icu::UnicodeString parts =
        icu::Normalizer2::getNFDInstance(status)->normalize(unicode(text), status);
    icu::UnicodeString bare;
    for (std::int32_t at = 0; at < parts.length(); at = parts.moveIndex32(at, 1)) {
        if (u_charType(parts.char32At(at)) != U_NON_SPACING_MARK) {
            bare.append(parts.char32At(at));
        }
    }
    return units(bare);
}

std::optional<bool> matches(std::u16string_view text, std::u16string_view pattern,
                            std::uint32_t flags) {
    UErrorCode status = U_ZERO_ERROR;
    const icu::UnicodeString searched = unicode(text);
    icu::RegexMatcher matcher(unicode(pattern), searched, flags, status);
    const bool isMatch = U_SUCCESS(status) != 0 && matcher.matches(status) != 0;
    return U_SUCCESS(status) != 0 ? std::optional(isMatch) : std::nullopt;
}

/// "?" is any character, "*" any text; the rest stands for itself.
std::u16string expressionOf(std::u16string_view pattern) {
    std::u16string expression;
    for (const char16_t unit : pattern) {
        if (unit == u'?' || unit == u'*') {
            expression += unit == u'?' ? u"." : u".*";
        } else {
            const bool isSpecial = unit < 0x80 && u_isalnum(unit) == 0;
            expression.append(isSpecial ? u"\\" : u"") += unit;
        }
    }
    return expression;
}

} // namespace

std::optional<bool> holds(TextOperator relation, std::u16string_view text,
                          std::u16string_view other, TextLikeness likeness) {
    if (likeness.ignoresMarks) {
        return holds(relation, withoutMarks(text), withoutMarks(other), {likeness.ignoresCase});
    }
    const std::uint32_t flags = likeness.ignoresCase ? std::uint32_t{UREGEX_CASE_INSENSITIVE} : 0U;
    if (relation == TextOperator::matches) {
        return matches(text, other, flags);
    }
    if (relation == TextOperator::like) {
        return matches(text, expressionOf(other), flags | UREGEX_DOTALL);
    }
    if (likeness.ignoresCase) {
        return holds(relation, units(unicode(text).foldCase()), units(unicode(other).foldCase()),
                     {});
    }
    switch (relation) {
    case TextOperator::equal:
        return text == other;
    case TextOperator::notEqual:
        return text != other;
    case TextOperator::beginsWith:
        return text.starts_with(other);
    case TextOperator::endsWith:
        return text.ends_with(other);
    case TextOperator::in:
        return other.find(text) != other.npos;
    case TextOperator::contains:
        return text.find(other) != text.npos;
    default:
        return std::nullopt;
    }
}

} // namespace desktop
