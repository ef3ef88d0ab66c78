// Walks over the text once: signs by a table, words by looking up each run of letters and digits.
#include "library/files/viewers/syntax_colours.hpp"

#include "library/common/surrogates.hpp"
#include "library/common/white_space.hpp"

#include <algorithm>
#include <array>

namespace wentra::files {
namespace {

constexpr std::size_t asciiEnd = 0x80;

constexpr std::array<std::u16string_view, 30> reportWords{
    u"symbol",         u"imageIndex",   u"imageOffset",   u"symbolLocation",  u"timestamp",
    u"startTimestamp", u"Power Source", u"Primary state", u"Advisory levels", u"Wakeups",
    u"vmSummary",      u"parentProc",   u"exception",     u"coalitionName",   u"procName",
    u"value",          u"ktriageinfo",  u"name",          u"panicString",     u"continuation",
    u"User Activity",  u"systemTime",   u"namespace",     u"Identifier",      u"1.0",
    u"Path",           u"true",         u"false",         u"subtype",         u"path"};
constexpr std::array<std::u16string_view, 7> listWords{u"array", u"plist",   u"dict", u"string",
                                                       u"key",   u"integer", u"text"};
/// The one word with a dot, which matches anything.
constexpr std::u16string_view dotted = u"1.0";

constexpr bool isAsciiWord(char16_t unit) {
    return (unit >= u'0' && unit <= u'9') || (unit >= u'A' && unit <= u'Z') ||
           (unit >= u'a' && unit <= u'z') || unit == u'_';
}

constexpr Syntax signAt(char16_t unit) {
    switch (unit) {
    case u'(':
    case u')':
        return Syntax::parenthesis;
    case u'[':
    case u']':
        return Syntax::squareBracket;
    case u'<':
    case u'>':
        return Syntax::angleBracket;
    case u'+':
    case u'-':
    case u'×':
    case u'÷':
    case u':':
    case u';':
        return Syntax::sign;
    default:
        return Syntax::none;
    }
}

/// What an ASCII unit can be the beginning of.
struct Lead {
    Syntax sign = Syntax::none;
    bool word = false;
};
constexpr auto leads = [] {
    std::array<Lead, asciiEnd> table{};
    for (char16_t unit = 0; unit < asciiEnd; ++unit) {
        table[unit] = {signAt(unit), isAsciiWord(unit)};
    }
    return table;
}();

struct Word {
    std::u16string_view text;
    Syntax syntax;
};
constexpr std::size_t wordCount = reportWords.size() + listWords.size();

/// The words by their first unit: those of `unit` stand from `starts[unit]` to `starts[unit + 1]`.
struct Vocabulary {
    std::array<Word, wordCount> words{};
    std::array<unsigned char, asciiEnd + 1> starts{};
};
constexpr auto vocabulary = [] {
    Vocabulary made{};
    std::size_t count = 0;
    for (const std::u16string_view word : reportWords) {
        made.words[count++] = {word, Syntax::reportWord};
    }
    for (const std::u16string_view word : listWords) {
        made.words[count++] = {word, Syntax::listWord};
    }
    std::ranges::sort(made.words, {}, [](const Word& word) { return word.text[0]; });
    for (std::size_t unit = 0; unit <= asciiEnd; ++unit) {
        made.starts[unit] = static_cast<unsigned char>(std::ranges::count_if(
            made.words, [&](const Word& word) { return word.text[0] < unit; }));
    }
    return made;
}();

class Walk {
public:
    Walk(std::u16string_view text, const WordRoles& roles) : text_(text), roles_(roles) {}

    std::vector<SyntaxStretch> stretches() {
        for (std::size_t place = 0; place < text_.size();) {
            place = step(place);
        }
        return std::move(found_);
    }

private:
    struct Character {
        char32_t value;
        std::size_t length;
    };

    /// Where to go on.
    std::size_t step(std::size_t place) {
        const char16_t unit = text_[place];
        const Lead lead = unit < asciiEnd ? leads[unit] : Lead{signAt(unit), false};
        if (!lead.word) {
            colour(place, 1, lead.sign);
            return place + 1;
        }
        colourWordsAt(place);
        while (++place < text_.size() && isAsciiWord(text_[place])) {
        }
        return place;
    }

    void colourWordsAt(std::size_t start) {
        const char16_t first = text_[start];
        for (std::size_t index = vocabulary.starts[first]; index < vocabulary.starts[first + 1U];
             ++index) {
            const Word& word = vocabulary.words[index];
            const std::size_t length = lengthAt(start, word.text);
            if (length > 0 && endsAt(start + length) && beginsAt(start)) {
                colour(start, length, word.syntax);
                return; // no other word stands at the same boundaries
            }
        }
    }

    /// How much of the text the word takes up there; 0 where it does not stand.
    [[nodiscard]] std::size_t lengthAt(std::size_t start, std::u16string_view word) const {
        if (word == dotted) {
            return dottedLengthAt(start);
        }
        return text_.substr(start, word.size()) == word ? word.size() : 0;
    }

    [[nodiscard]] std::size_t dottedLengthAt(std::size_t start) const {
        const std::size_t dot = start + 1;
        if (dot == text_.size() || isNewline(text_[dot])) {
            return 0;
        }
        const std::size_t last = dot + at(dot).length;
        return last < text_.size() && text_[last] == dotted.back() ? last + 1 - start : 0;
    }

    [[nodiscard]] Character at(std::size_t place) const {
        const char16_t next = place + 1 < text_.size() ? text_[place + 1] : u'\0';
        return isSurrogatePair(text_[place], next) ? Character{characterOf(text_[place], next), 2}
                                                   : Character{text_[place], 1};
    }
    [[nodiscard]] Character before(std::size_t place) const {
        const bool paired = place > 1 && isSurrogatePair(text_[place - 2], text_[place - 1]);
        return at(place - (paired ? 2 : 1));
    }

    [[nodiscard]] WordRole roleOf(char32_t character) const {
        if (character < asciiEnd) {
            return isAsciiWord(static_cast<char16_t>(character)) ? WordRole::word : WordRole::other;
        }
        return roles_(character);
    }
    /// Whether a word may end there.
    [[nodiscard]] bool endsAt(std::size_t place) const {
        return place == text_.size() || roleOf(at(place).value) == WordRole::other;
    }
    /// Whether a word may begin there.
    [[nodiscard]] bool beginsAt(std::size_t place) const {
        while (place > 0) {
            const Character character = before(place);
            const WordRole role = roleOf(character.value);
            if (role != WordRole::combining) {
                return role == WordRole::other;
            }
            place -= character.length;
        }
        return true;
    }

    /// Stretches come in order; only those within "1.0" come on top of one another.
    void colour(std::size_t place, std::size_t length, Syntax syntax) {
        if (syntax == Syntax::none) {
            return;
        }
        if (!found_.empty()) {
            SyntaxStretch& last = found_.back();
            const std::size_t end = last.range.location + last.range.length;
            if (place < end) {
                return cover(place, length, syntax);
            }
            if (place == end && last.syntax == syntax) {
                last.range.length += length;
                return;
            }
        }
        found_.push_back({{place, length}, syntax});
    }
    /// Takes the place over from the middle of the stretch that was found last.
    void cover(std::size_t place, std::size_t length, Syntax syntax) {
        SyntaxStretch& last = found_.back();
        const std::size_t end = last.range.location + last.range.length;
        const Syntax around = last.syntax;
        last.range.length = place - last.range.location;
        found_.push_back({{place, length}, syntax});
        found_.push_back({{place + length, end - place - length}, around});
    }

    std::u16string_view text_;
    const WordRoles& roles_;
    std::vector<SyntaxStretch> found_;
};

} // namespace

std::vector<SyntaxStretch> syntaxOf(std::u16string_view text, const WordRoles& roles) {
    return Walk(text, roles).stretches();
}

} // namespace wentra::files
