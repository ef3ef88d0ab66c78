// The colours of a crash report or an XML property list, found in one pass.
#pragma once

#include "bindings/foundation/range.hpp"

#include <functional>
#include <string_view>
#include <vector>

namespace wentra::files {

/// What the text's characters are coloured by; each has a colour of its own.
enum class Syntax : unsigned char {
    none,
    reportWord, ///< of the vocabulary of crash reports
    parenthesis,
    squareBracket,
    angleBracket,
    sign,     ///< arithmetic signs, colons and semicolons
    listWord, ///< of the vocabulary of XML property lists
};

struct SyntaxStretch {
    ns::Range range;
    Syntax syntax;
    friend bool operator==(const SyntaxStretch&, const SyntaxStretch&) = default;
};

/// What "\b" of a regular expression makes of a character. `combining` are those that extend the
/// one before or only format: there is no boundary before them, and they are looked past from
/// behind.
enum class WordRole : unsigned char { other, word, combining };

/// Answers for characters beyond ASCII. Asked of the same character again and again.
using WordRoles = std::function<WordRole(char32_t character)>;

/// What is to be coloured, in the text's order, without the rest; no two stretches overlap. The
/// same as matching `\b…\b` for each word and then the signs, where what is matched later counts,
/// and the dot in the word "1.0" stands for any character of a line.
[[nodiscard]] std::vector<SyntaxStretch> syntaxOf(std::u16string_view text, const WordRoles& roles);

} // namespace wentra::files
