// A search of our own where the platform's rules are simple, or else one of its own after the
// other.
#include "library/common/case_insensitive_search.hpp"

#include "library/common/occurrences.hpp"
#include "library/common/plain_text.hpp"

namespace wentra {
namespace {

std::vector<ns::Range> platformOccurrences(ns::String text, ns::String sought) {
    std::vector<ns::Range> found;
    ns::Range rest{0, text.length()};
    while (const auto range =
               text.rangeOf(sought, ns::StringCompareOptions::caseInsensitive, rest)) {
        found.push_back(*range);
        const unsigned long end = range->location + range->length;
        rest = {end, text.length() - end};
    }
    return found;
}

} // namespace

std::vector<ns::Range> occurrencesIgnoringCase(ns::String text, ns::String sought) {
    if (!text || sought.length() == 0) {
        return {};
    }
    const std::u16string units = text.utf16();
    const std::u16string soughtUnits = sought.utf16();
    return isPlainText(units) && isPlainText(soughtUnits)
               ? occurrences(units, soughtUnits, LetterCase::ignored)
               : platformOccurrences(text, sought);
}

} // namespace wentra
