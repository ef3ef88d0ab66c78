// Where a text stands in another, unit for unit, and putting something in its place.
#pragma once

#include "bindings/foundation/range.hpp"
#include "library/common/text_search.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace wentra {

/// Every place in the text where `sought` stands, from the start on; none overlaps another. None
/// when `sought` is empty.
[[nodiscard]] std::vector<ns::Range> occurrences(std::u16string_view text,
                                                 std::u16string_view sought,
                                                 LetterCase letterCase = LetterCase::counts);

/// Puts the replacement in the place of every occurrence, in one pass: what it brings in is not
/// searched.
void replaceAll(std::u16string& text, std::u16string_view sought, std::u16string_view replacement);

} // namespace wentra
