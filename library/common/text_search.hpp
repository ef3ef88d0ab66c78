// Searching a text for another, many places at a time.
#pragma once

#include "library/common/unit_vector.hpp"

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace wentra {

/// Whether the case of ASCII's letters counts.
enum class LetterCase : std::uint8_t { counts, ignored };

/// Looks for one text in another, unit for unit. Both are borrowed.
class TextSearch {
public:
    TextSearch(std::u16string_view text, std::u16string_view sought,
               LetterCase letterCase = LetterCase::counts);

    /// The first place from `place` on where it stands; the end of the text when there is none, or
    /// nothing is sought.
    [[nodiscard]] std::size_t next(std::size_t place) const;

private:
    /// A unit of what is sought, eight times.
    struct Letter {
        UnitVector lower;
        UnitVector caseBit; ///< what tells it from the capital letter; 0 where that does not count

        [[nodiscard]] inline UnitVector differences(const char16_t* place) const;
        [[nodiscard]] inline bool fits(char16_t unit) const;
    };

    static Letter letter(char16_t unit, LetterCase letterCase);
    // Only `next` needs these two, many times.
    [[nodiscard]] inline UnitVector differences(std::size_t place) const;
    [[nodiscard]] inline bool mayStandIn(std::size_t place) const;
    [[nodiscard]] std::size_t placesEnd() const;
    [[nodiscard]] std::size_t candidate(std::size_t place, std::size_t end) const;
    [[nodiscard]] bool standsAt(std::size_t place) const;

    std::u16string_view text_;
    std::u16string_view sought_;
    LetterCase letterCase_;
    Letter first_{};
    Letter last_{};
};

} // namespace wentra
