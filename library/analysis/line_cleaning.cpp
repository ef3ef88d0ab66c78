// Replaces step by step, in all lines at once: each search has its price.
#include "library/analysis/line_cleaning.hpp"

#include "library/common/occurrences.hpp"

namespace wentra::analysis {

std::u16string cleaned(std::span<const std::u16string_view> lines, std::u16string_view separator,
                       std::span<const Replacement> steps) {
    std::size_t size = 0;
    for (const std::u16string_view line : lines) {
        size += line.size() + separator.size();
    }
    std::u16string text;
    text.reserve(size); // growing would touch more memory than the text has
    for (const std::u16string_view line : lines) {
        text.append(line).append(separator);
    }
    for (const Replacement& step : steps) {
        replaceAll(text, step.sought, step.put);
    }
    return text;
}

} // namespace wentra::analysis
