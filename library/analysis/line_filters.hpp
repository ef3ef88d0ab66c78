// The filters of the movable dialog: which lines of a text each picks, and how it shows them.
#pragma once

#include "library/analysis/line_cleaning.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace wentra::analysis {

struct LineFilter {
    std::u16string_view title;                                          ///< of its results
    std::vector<std::u16string_view> (*pick)(std::u16string_view text); ///< lines, in their order
    std::span<const Replacement> cleaning;
    std::u16string_view separator; ///< behind each line
};

extern const LineFilter urlFilter;
extern const LineFilter libraryFilter;
extern const LineFilter dylibFilter;
extern const LineFilter errorFilter; ///< paths of add-ons and of applications
extern const LineFilter systemFilter;
extern const LineFilter numberFilter;

/// The lines of the text (ended by "\n" alone) that the filter picks, cleaned, in their order.
[[nodiscard]] std::u16string filtered(std::u16string_view text, const LineFilter& filter);

} // namespace wentra::analysis
