// A few straight passes each way.
#include "library/toolbox/text_tools/unicode_escapes.hpp"

#include "library/common/occurrences.hpp"
#include "library/common/slashed_text.hpp"
#include "library/common/surrogates.hpp"
#include "library/common/text_parts.hpp"

#include <algorithm>
#include <utility>

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

constexpr bool endsPlainText(char16_t unit) { return unit == u'\\' || unit == u'"'; }

/// Reads a text up to the first quotation mark without a backslash.
class QuotedText {
public:
    explicit QuotedText(std::u16string_view text) : rest_(text) { plain_.reserve(text.size()); }

    /// Whether the text ends: not when its last backslash takes the mark that would follow it.
    bool read() {
        while (!rest_.empty() && rest_[0] != u'"') {
            if (rest_[0] != u'\\') {
                readPlainText();
            } else if (rest_.size() > 1) {
                readEscape();
            } else {
                return false;
            }
        }
        return true;
    }

    [[nodiscard]] std::u16string_view rest() const { return rest_; }
    [[nodiscard]] std::u16string takePlain() { return std::move(plain_); }

private:
    void take(std::size_t count) { rest_.remove_prefix(count); }

    void readPlainText() {
        const auto end = std::ranges::find_if(rest_, endsPlainText);
        plain_.append(rest_.begin(), end);
        take(static_cast<std::size_t>(end - rest_.begin()));
    }

    void readEscape() {
        take(1);
        const auto [unit, length] = rest_[0] == u'u' ? slashedUnit(rest_) : slashed(rest_);
        plain_ += unit;
        const bool isSlash = rest_[0] == u'\\';
        take(length);
        if (isSlash && rest_.starts_with(u'u')) { // also behind a backslash
            plain_ += u'U';
            take(1);
        }
    }

    std::u16string_view rest_;
    std::u16string plain_;
};

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

/// Looks at all units, several at once, in the form that compilers know for that: it is quicker
/// than to end at the first.
bool hasSurrogates(std::u16string_view text) {
    char16_t found = 0;
    for (const char16_t unit : text) {
        found |= (unit & 0xF800U) == 0xD800U ? 1 : 0;
    }
    return found != 0;
}

bool hasHalfAPair(std::u16string_view text) {
    if (!hasSurrogates(text)) {
        return false;
    }
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
    QuotedText quoted(text);
    if (!quoted.read() || hasHalfAPair(text)) {
        return std::nullopt;
    }
    if (!quoted.rest().empty() && !isComment(quoted.rest().substr(1))) {
        return std::nullopt;
    }
    std::u16string plain = quoted.takePlain();
    replaceAll(plain, u"\\r\\n", u"\n");
    return plain;
}

} // namespace wentra::toolbox
