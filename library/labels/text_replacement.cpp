// Applies the prefix rule, the whole-text rule and the line break sign, in that order.
#include "library/labels/text_replacement.hpp"

#include "library/common/white_space.hpp"

#include <algorithm>
#include <utility>

namespace wentra::labels {
namespace {

constexpr char16_t lineBreak = u'\n';
constexpr char16_t lineBreakSign = u'↲';

std::optional<std::u16string> withPrefixReplaced(std::u16string_view text,
                                                 const TextRuleLookup& lookup) {
    const auto end =
        std::ranges::find_if(text, [](char16_t unit) { return unit == u':' || isNewline(unit); });
    if (end == text.end() || *end != u':') {
        return std::nullopt;
    }
    const auto length = static_cast<std::size_t>(end - text.begin());
    std::optional<std::u16string> replaced = lookup(text.substr(0, length));
    if (replaced) {
        replaced->append(text.substr(length));
    }
    return replaced;
}

std::optional<std::u16string> wholeReplacement(std::u16string_view text,
                                               const TextRuleLookup& lookup) {
    if (text.find(lineBreak) == text.npos) {
        return lookup(text);
    }
    return lookup(withLineBreakSigns(text));
}

} // namespace

std::u16string withLineBreakSigns(std::u16string_view text) {
    std::u16string written(text);
    std::ranges::replace(written, lineBreak, lineBreakSign);
    return written;
}

std::optional<std::u16string> replacedText(std::u16string_view text, const TextRuleLookup& lookup) {
    std::optional<std::u16string> shown = withPrefixReplaced(text, lookup);
    if (auto value = wholeReplacement(shown ? *shown : text, lookup)) {
        shown = std::move(value);
    }
    if (!shown) {
        if (text.find(lineBreakSign) == text.npos) {
            return std::nullopt;
        }
        shown = text;
    }
    std::ranges::replace(*shown, lineBreakSign, lineBreak);
    if (*shown == text) {
        return std::nullopt;
    }
    return shown;
}

} // namespace wentra::labels
