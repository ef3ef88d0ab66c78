// The filters, each a search.
#include "library/clipboard/record_filters.hpp"

#include "library/common/decimal_digits.hpp"
#include "library/common/white_space.hpp"

#include <algorithm>

namespace wentra::clipboard {
namespace {

bool isLetter(char16_t unit) {
    return (unit >= u'a' && unit <= u'z') || (unit >= u'A' && unit <= u'Z');
}

/// A text of several lines is neither a number nor a word to look for.
bool isOneLine(std::u16string_view text) { return std::ranges::none_of(text, isNewline); }

} // namespace

bool passes(std::u16string_view text, const RecordFilters& filters) {
    if (filters.links && text.find(u"http") == std::u16string_view::npos) {
        return false;
    }
    if ((filters.numbers || filters.letters) && !isOneLine(text)) {
        return false;
    }
    return (!filters.numbers || holdsDecimalDigits(text, 1)) &&
           (!filters.letters || std::ranges::any_of(text, isLetter));
}

} // namespace wentra::clipboard
