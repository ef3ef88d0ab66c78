// Looks for the first and the last unit of what is sought, many places at a time.
#include "library/common/text_search.hpp"

#include <algorithm>

namespace wentra {
namespace {

constexpr char16_t lowerCase(char16_t unit) {
    return unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit + 0x20) : unit;
}

/// Whether one of the units is zero in the vectors of that place and the 24 behind.
template <class Vectors>
bool hasZero(std::size_t place, Vectors vectorAt) {
    constexpr std::size_t size = unitVectorSize;
    return holdsAny((vectorAt(place) == 0) | (vectorAt(place + size) == 0) |
                    (vectorAt(place + 2 * size) == 0) | (vectorAt(place + 3 * size) == 0));
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
        return {unitVector(unit), UnitVector{}};
    }
    const char16_t lower = lowerCase(unit);
    const bool hasCase = lower >= u'a' && lower <= u'z';
    return {unitVector(lower), unitVector(hasCase ? u' ' : u'\0')};
}

UnitVector TextSearch::Letter::differences(const char16_t* place) const {
    return (unitsAt(place) | caseBit) ^ lower;
}

bool TextSearch::Letter::fits(char16_t unit) const { return (unit | caseBit[0]) == lower[0]; }

/// The bits in which the text differs from the first or the last unit at that place and the seven
/// behind it.
UnitVector TextSearch::differences(std::size_t place) const {
    const char16_t* const there = text_.data() + place;
    return first_.differences(there) | last_.differences(there + sought_.size() - 1);
}

/// Whether both units fit at one of those places or the 24 behind. Many texts' first unit is rare
/// enough to be looked for alone.
bool TextSearch::mayStandIn(std::size_t place) const {
    return hasZero(place,
                   [this](std::size_t at) { return first_.differences(text_.data() + at); }) &&
           (sought_.size() == 1 ||
            hasZero(place, [this](std::size_t at) { return differences(at); }));
}

std::size_t TextSearch::next(std::size_t place) const {
    const std::size_t end = placesEnd();
    while (place < end) {
        place = candidate(place, end);
        if (place < end && standsAt(place)) {
            return place;
        }
        ++place;
    }
    return text_.size();
}

/// The first place from that one on where the first and the last unit fit; `end` when there is
/// none.
std::size_t TextSearch::candidate(std::size_t place, std::size_t end) const {
    while (end - place >= 4 * unitVectorSize && !mayStandIn(place)) {
        place += 4 * unitVectorSize;
    }
    while (end - place >= unitVectorSize) {
        const std::size_t fitting = firstZero(differences(place));
        place += fitting;
        if (fitting < unitVectorSize) {
            return place;
        }
    }
    while (place < end &&
           !(first_.fits(text_[place]) && last_.fits(text_[place + sought_.size() - 1]))) {
        ++place;
    }
    return place;
}

std::size_t TextSearch::placesEnd() const {
    const bool mayStand = !sought_.empty() && sought_.size() <= text_.size();
    return mayStand ? text_.size() - sought_.size() + 1 : 0;
}

bool TextSearch::standsAt(std::size_t place) const {
    constexpr std::size_t known = 2; // the first and the last unit fit
    if (sought_.size() <= known) {
        return true;
    }
    const std::u16string_view there = text_.substr(place, sought_.size());
    return letterCase_ == LetterCase::counts
               ? std::ranges::equal(there, sought_)
               : std::ranges::equal(there, sought_, {}, &lowerCase, &lowerCase);
}

} // namespace wentra
