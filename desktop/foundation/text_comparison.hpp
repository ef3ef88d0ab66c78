// How predicates compare texts.
#pragma once

#include <optional>
#include <string_view>

namespace desktop {

/// The platform's numbers.
enum class TextOperator : unsigned long {
    equal = 4,
    notEqual = 5,
    matches = 6, ///< all of the text, by a regular expression in which "." is no line break
    like = 7,    ///< all of the text, by a pattern with "?" and "*"
    beginsWith = 8,
    endsWith = 9,
    in = 10,
    contains = 99,
};

/// What is taken for the same: "[c]" and "[d]".
struct TextLikeness {
    bool ignoresCase = false;
    bool ignoresMarks = false; ///< accents and the like
};

/// Whether that is so of the text and the other text or pattern; nothing for other operators and
/// for what is no regular expression.
[[nodiscard]] std::optional<bool> holds(TextOperator relation, std::u16string_view text,
                                        std::u16string_view other, TextLikeness likeness);

} // namespace desktop
