// Looks for the first and the last unit of what is sought, a block of places at a time.
#include "library/common/text_search.hpp"

#include <algorithm>

namespace wentra {
namespace {

/// So many places are looked at before anything is decided, which compilers turn into vectors.
constexpr std::size_t blockPlaces = 32;

constexpr char16_t lowerCase(char16_t unit) {
    return unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit + 0x20) : unit;
}

} // namespace

TextSearch::TextSearch(std::u16string_view text, std::u16string_view sought, LetterCase letterCase)
    : text_(text), sought_(sought), letterCase_(letterCase) {
    if (!sought.empty()) {
        first_ = letter(sought.front(), letterCase);
        last_ = letter(sought.back(), letterCase);
    }
}

TextSearch::Letter TextSearch::letter(char16_t unit, LetterCase letterCase) {
    if (letterCase == LetterCase::counts) {
        return {unit, u'\0'};
    }
    const char16_t lower = lowerCase(unit);
    return {lower, lower >= u'a' && lower <= u'z' ? u' ' : u'\0'};
}

std::size_t TextSearch::next(std::size_t place) const {
    const std::size_t end = placesEnd();
    while (place < end) {
        const std::size_t blockEnd = std::min(place + blockPlaces, end);
        if (blockEnd - place == blockPlaces && !mayStandIn(place)) {
            place = blockEnd;
            continue;
        }
        for (; place < blockEnd; ++place) {
            if (first_.difference(text_[place]) == 0 && standsAt(place)) {
                return place;
            }
        }
    }
    return text_.size();
}

std::size_t TextSearch::placesEnd() const {
    const bool mayStand = !sought_.empty() && sought_.size() <= text_.size();
    return mayStand ? text_.size() - sought_.size() + 1 : 0;
}

/// In the block that begins there.
bool TextSearch::mayStandIn(std::size_t place) const {
    const char16_t* const starts = text_.data() + place;
    const char16_t* const ends = starts + sought_.size() - 1;
    const Letter first = first_; // copies, which nothing in the loop can change
    const Letter last = last_;
    std::uint16_t found = 0;
    for (std::size_t index = 0; index < blockPlaces; ++index) {
        const auto differs = static_cast<std::uint16_t>(first.difference(starts[index]) |
                                                        last.difference(ends[index]));
        found = static_cast<std::uint16_t>(found | (differs == 0 ? 1U : 0U));
    }
    return found != 0;
}

bool TextSearch::standsAt(std::size_t place) const {
    const std::u16string_view there = text_.substr(place, sought_.size());
    return letterCase_ == LetterCase::counts
               ? there == sought_
               : std::ranges::equal(there, sought_, {}, &lowerCase, &lowerCase);
}

} // namespace wentra
