// From start and current row to rows to pick and to release.
#include "library/toolbox/grid/slide_step.hpp"

#include <algorithm>

namespace wentra::toolbox {

SlideStep slideStep(const RowSet& picked, long start, long current) {
    SlideStep step;
    if (start <= current) {
        for (auto row = picked.firstMissing(start, current); row;
             row = picked.firstMissing(*row + 1, current)) {
            step.picked.push_back(*row);
        }
    } else {
        for (auto row = picked.lastMissing(start, current); row;
             row = picked.lastMissing(*row - 1, current)) {
            step.picked.push_back(*row);
        }
    }
    step.released = picked.outside(std::min(start, current), std::max(start, current));
    return step;
}

} // namespace wentra::toolbox
