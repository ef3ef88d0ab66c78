// Words, lines and pages of the rule editor.
#include "library/labels/rule_editor/editor_text.hpp"

#include "library/common/occurrences.hpp"
#include "library/labels/rule_text.hpp"

#include <algorithm>

namespace wentra::labels {
namespace {

constexpr std::u16string_view wordDelimiters = u" \n\":,，。↲.;=(){}<>*[]@'×-÷+！？";

bool isDelimiter(char16_t unit) { return wordDelimiters.find(unit) != wordDelimiters.npos; }

/// The characters that end a line, as the platform counts lines.
constexpr std::u16string_view lineBreaks = u"\n\r\u0085\u2028\u2029";

/// Where the line that holds `position` starts.
std::size_t lineStart(std::u16string_view text, std::size_t position) {
    const std::size_t before =
        position == 0 ? text.npos : text.find_last_of(lineBreaks, position - 1);
    if (before == text.npos) {
        return 0;
    }
    // Between the two halves of a line break, the line is the one that it ends.
    const bool splitsBreak =
        text[before] == u'\r' && before + 1 < text.size() && text[before + 1] == u'\n';
    return splitsBreak && before + 1 == position ? lineStart(text, before) : before + 1;
}

/// The end of the line that holds `position`, behind its break.
std::size_t lineEnd(std::u16string_view text, std::size_t position) {
    const std::size_t end = text.find_first_of(lineBreaks, position);
    if (end == text.npos) {
        return text.size();
    }
    return text.substr(end).starts_with(u"\r\n") ? end + 2 : end + 1;
}

} // namespace

ns::Range wordAt(std::u16string_view text, std::size_t position) {
    const auto caret = text.begin() + static_cast<std::ptrdiff_t>(std::min(position, text.size()));
    const auto first =
        std::find_if(std::make_reverse_iterator(caret), text.rend(), isDelimiter).base();
    const auto last = std::find_if(caret, text.end(), isDelimiter);
    return {static_cast<std::size_t>(first - text.begin()), static_cast<std::size_t>(last - first)};
}

ns::Range linesOf(std::u16string_view text, ns::Range selection) {
    const std::size_t first = std::min<std::size_t>(selection.location, text.size());
    const std::size_t length = std::min<std::size_t>(selection.length, text.size() - first);
    const std::size_t start = lineStart(text, first);
    const std::size_t lastHeld = length == 0 ? first : first + length - 1;
    return {start, lineEnd(text, lastHeld) - start};
}

bool endsWithFourBreaks(std::u16string_view text) { return text.ends_with(u"\n\n\n\n"); }

std::u16string withoutHelp(std::u16string_view text) {
    std::u16string rest(text);
    replaceAll(rest, helpText, u"");
    return rest;
}

double previousPage(double offset, double height) { return std::max(offset - height, 0.0); }

double nextPage(double offset, double height, double contentHeight) {
    return std::min(offset + height, contentHeight - height);
}

} // namespace wentra::labels
