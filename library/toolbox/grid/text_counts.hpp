// Counting what a text is made of.
#pragma once

#include <string_view>

namespace wentra::toolbox {

struct TextCounts {
    unsigned long words = 0;   ///< ideographs (一 to 龥), ASCII letters and digits
    unsigned long symbols = 0; ///< everything else

    friend bool operator==(const TextCounts&, const TextCounts&) = default;
};

/// Adds the units of UTF-16 text to the counts, each for itself: of a surrogate pair, each half is
/// one symbol.
void countUnits(std::u16string_view text, TextCounts& counts);

} // namespace wentra::toolbox
