// What a movement of a sliding finger does to the picked rows.
#pragma once

#include "library/toolbox/grid/row_set.hpp"

#include <vector>

namespace wentra::toolbox {

struct SlideStep {
    std::vector<long> picked;     ///< to be picked, in this order
    std::optional<long> released; ///< to be released; one at most, so that releasing lags behind
};

/// The step of a slide that began on `start` and is over `current` now, both rows of the grid.
/// Every row between them that is not picked yet is picked, from `start` on; of the rows that are
/// picked elsewhere one is released.
[[nodiscard]] SlideStep slideStep(const RowSet& picked, long start, long current);

} // namespace wentra::toolbox
