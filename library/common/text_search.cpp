// Looks for the first and the last unit of what is sought, many places at a time.
#include "library/common/text_search.hpp"

#include "library/common/unit_vector.hpp"

#include <algorithm>

namespace wentra {
namespace {

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

/// The first and the last unit of what is sought, each eight times.
class TextSearch::Letters {
public:
    explicit Letters(const TextSearch& search)
        : starts_(search.text_.data()), ends_(starts_ + search.sought_.size() - 1),
          first_(unitVector(search.first_.lower)), firstCase_(unitVector(search.first_.caseBit)),
          last_(unitVector(search.last_.lower)), lastCase_(unitVector(search.last_.caseBit)) {}

    /// The bits in which the text differs from them at that place and the seven behind it.
    [[nodiscard]] UnitVector differences(std::size_t place) const {
        return startDifferences(place) | ((unitsAt(ends_ + place) | lastCase_) ^ last_);
    }

    /// Whether they stand at one of those places or the 24 behind. Many texts' first unit is rare
    /// enough to be looked for alone.
    [[nodiscard]] bool mayStandIn(std::size_t place) const {
        return hasZero(place, [this](std::size_t at) { return startDifferences(at); }) &&
               hasZero(place, [this](std::size_t at) { return differences(at); });
    }

private:
    [[nodiscard]] UnitVector startDifferences(std::size_t place) const {
        return (unitsAt(starts_ + place) | firstCase_) ^ first_;
    }
    template <class Differences>
    static bool hasZero(std::size_t place, Differences differences) {
        constexpr std::size_t size = unitVectorSize;
        const auto found = (differences(place) == 0) | (differences(place + size) == 0) |
                           (differences(place + 2 * size) == 0) |
                           (differences(place + 3 * size) == 0);
        const auto [low, high] = std::bit_cast<std::array<std::uint64_t, 2>>(found);
        return (low | high) != 0;
    }

    const char16_t* starts_;
    const char16_t* ends_;
    UnitVector first_;
    UnitVector firstCase_;
    UnitVector last_;
    UnitVector lastCase_;
};

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

/// The first place from that one on where the first and the last unit fit, or the first of the
/// few at the end that make no vector; `end` when there is none.
std::size_t TextSearch::candidate(std::size_t place, std::size_t end) const {
    const Letters letters(*this);
    while (end - place >= 4 * unitVectorSize && !letters.mayStandIn(place)) {
        place += 4 * unitVectorSize;
    }
    while (end - place >= unitVectorSize) {
        const std::size_t fitting = firstZero(letters.differences(place));
        place += fitting;
        if (fitting < unitVectorSize) {
            break;
        }
    }
    return place;
}

std::size_t TextSearch::placesEnd() const {
    const bool mayStand = !sought_.empty() && sought_.size() <= text_.size();
    return mayStand ? text_.size() - sought_.size() + 1 : 0;
}

bool TextSearch::standsAt(std::size_t place) const {
    const std::u16string_view there = text_.substr(place, sought_.size());
    return letterCase_ == LetterCase::counts
               ? there == sought_
               : std::ranges::equal(there, sought_, {}, &lowerCase, &lowerCase);
}

} // namespace wentra
