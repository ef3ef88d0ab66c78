// One search of the platform's after the other.
#include "library/common/case_insensitive_search.hpp"

namespace wentra {

std::vector<ns::Range> occurrencesIgnoringCase(ns::String text, ns::String sought) {
    std::vector<ns::Range> found;
    if (!text || sought.length() == 0) {
        return found;
    }
    ns::Range rest{0, text.length()};
    while (const auto range =
               text.rangeOf(sought, ns::StringCompareOptions::caseInsensitive, rest)) {
        found.push_back(*range);
        const unsigned long end = range->location + range->length;
        rest = {end, text.length() - end};
    }
    return found;
}

} // namespace wentra
