// Keeps, cleans and sorts.
#include "library/analysis/library_lines.hpp"

#include "library/analysis/line_cleaning.hpp"
#include "library/analysis/lines_holding.hpp"

#include <array>

namespace wentra::analysis {
namespace {

constexpr std::array steps{backslashes, nameKey, spacedColon, pathKey, abortNote};

constexpr std::array<std::u16string_view, 2> libraryKinds{u".dylib", u".framework"};

} // namespace

LibraryLines libraryLines(std::u16string_view text, SystemList list) {
    LibraryLines lines;
    for (const std::u16string_view line : linesHolding(text, libraryKinds)) {
        std::u16string clean = cleaned(line, steps);
        (isSystemLine(clean, list) ? lines.system : lines.others).push_back(std::move(clean));
    }
    return lines;
}

} // namespace wentra::analysis
