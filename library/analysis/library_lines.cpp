// Keeps, cleans and sorts.
#include "library/analysis/library_lines.hpp"

#include "library/analysis/line_cleaning.hpp"
#include "library/common/text_parts.hpp"

#include <array>

namespace wentra::analysis {
namespace {

constexpr std::array steps{backslashes, nameKey, spacedColon, pathKey, abortNote};

bool namesLibrary(std::u16string_view line) {
    return line.find(u".dylib") != line.npos || line.find(u".framework") != line.npos;
}

} // namespace

LibraryLines libraryLines(std::u16string_view text, SystemList list) {
    LibraryLines lines;
    for (const std::u16string_view line : split(text, isLineFeed)) {
        if (namesLibrary(line)) {
            std::u16string clean = cleaned(line, steps);
            (isSystemLine(clean, list) ? lines.system : lines.others).push_back(std::move(clean));
        }
    }
    return lines;
}

} // namespace wentra::analysis
