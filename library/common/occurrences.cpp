// One search for the places, one copy for the replacing.
#include "library/common/occurrences.hpp"

#include <utility>

namespace wentra {

std::vector<ns::Range> occurrences(std::u16string_view text, std::u16string_view sought,
                                   LetterCase letterCase) {
    std::vector<ns::Range> found;
    const TextSearch search(text, sought, letterCase);
    for (std::size_t place = search.next(0); place < text.size();
         place = search.next(place + sought.size())) {
        found.push_back({place, sought.size()});
    }
    return found;
}

namespace {

/// Moves what stays, without a branch for each unit.
void removeAll(std::u16string& text, char16_t removed) {
    std::size_t kept = 0;
    for (const char16_t unit : text) {
        text[kept] = unit;
        kept += unit == removed ? 0 : 1;
    }
    text.resize(kept);
}

} // namespace

void replaceAll(std::u16string& text, std::u16string_view sought, std::u16string_view replacement) {
    if (sought.size() == 1 && replacement.empty()) {
        removeAll(text, sought.front());
        return;
    }
    const std::vector<ns::Range> found = occurrences(text, sought);
    if (found.empty()) {
        return;
    }
    std::u16string replaced;
    replaced.reserve(text.size());
    std::size_t copied = 0;
    for (const ns::Range& range : found) {
        replaced.append(text, copied, range.location - copied).append(replacement);
        copied = range.location + range.length;
    }
    replaced.append(text, copied);
    text = std::move(replaced);
}

} // namespace wentra
