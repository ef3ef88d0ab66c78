// Replaces step by step.
#include "library/analysis/line_cleaning.hpp"

#include "library/common/occurrences.hpp"

namespace wentra::analysis {

std::u16string cleaned(std::u16string_view line, std::span<const Replacement> steps) {
    std::u16string result(line);
    for (const Replacement& step : steps) {
        replaceAll(result, step.sought, step.put);
    }
    return result;
}

} // namespace wentra::analysis
