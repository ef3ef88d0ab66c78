// Keeps, cleans and sorts.
#include "library/analysis/library_lines.hpp"

#include "library/analysis/line_cleaning.hpp"
#include "library/analysis/lines_holding.hpp"
#include "library/common/text_parts.hpp"

#include <array>

namespace wentra::analysis {
namespace {

constexpr std::array libraryLineSteps{backslashes, nameKey, spacedColon, pathKey, abortNote};

constexpr std::array<std::u16string_view, 2> libraryKinds{u".dylib", u".framework"};

} // namespace

LibraryLines libraryLines(std::u16string_view text, SystemList list) {
    LibraryLines lines;
    const std::u16string clean = cleaned(linesHolding(text, libraryKinds), u"\n", libraryLineSteps);
    std::vector<std::u16string_view> parts = split(clean, u'\n');
    parts.pop_back(); // behind the last line's end
    for (const std::u16string_view line : parts) {
        (isSystemLine(line, list) ? lines.system : lines.others).emplace_back(line);
    }
    return lines;
}

} // namespace wentra::analysis
