// Searching whatever the case in texts of letters that have no other relations.
#pragma once

#include "bindings/foundation/range.hpp"

#include <string_view>
#include <vector>

namespace wentra {

/// Whether the text has nothing but ASCII, Chinese characters and punctuation: units that stand for
/// themselves, and of which only ASCII's letters have a case. For such texts the platform's rules
/// of case come down to those of `plainOccurrences`.
[[nodiscard]] bool isPlainText(std::u16string_view text);

/// Every place where `sought` stands when the case of ASCII's letters does not count, from the
/// start on; none overlaps another. None when `sought` is empty.
[[nodiscard]] std::vector<ns::Range> plainOccurrences(std::u16string_view text,
                                                      std::u16string_view sought);

} // namespace wentra
