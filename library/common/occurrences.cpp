// One way through the text.
#include "library/common/occurrences.hpp"

#include "library/common/unit_vector.hpp"

#include <cstring>
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

/// Moves what stays: eight units at once where all of them do, else without a branch for each.
void removeAll(std::u16string& text, char16_t removed) {
    char16_t* kept = text.data();
    const char16_t* unit = text.data();
    const char16_t* const end = unit + text.size();
    const UnitVector sought = unitVector(removed);
    const auto moveOne = [&] {
        *kept = *unit++;
        kept += *kept == removed ? 0 : 1;
    };
    while (end - unit >= std::ptrdiff_t{unitVectorSize}) {
        const UnitVector units = unitsAt(unit);
        if (holdsAny(units == sought)) {
            for (std::size_t count = 0; count != unitVectorSize; ++count) {
                moveOne();
            }
        } else {
            std::memcpy(kept, &units, sizeof units);
            kept += unitVectorSize;
            unit += unitVectorSize;
        }
    }
    while (unit != end) {
        moveOne();
    }
    text.resize(static_cast<std::size_t>(kept - text.data()));
}

} // namespace

void replaceAll(std::u16string& text, std::u16string_view sought, std::u16string_view replacement) {
    if (sought.size() == 1 && replacement.empty()) {
        removeAll(text, sought.front());
        return;
    }
    const TextSearch search(text, sought);
    std::size_t place = search.next(0);
    if (place == text.size()) {
        return;
    }
    std::u16string replaced;
    replaced.reserve(text.size());
    std::size_t copied = 0;
    for (; place < text.size(); place = search.next(copied)) {
        replaced.append(text, copied, place - copied).append(replacement);
        copied = place + sought.size();
    }
    replaced.append(text, copied);
    text = std::move(replaced);
}

} // namespace wentra
