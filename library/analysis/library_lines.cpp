// Keeps, cleans and sorts.
#include "library/analysis/library_lines.hpp"

#include "library/analysis/line_cleaning.hpp"
#include "library/analysis/lines_holding.hpp"
#include "library/common/line_blocks.hpp"

#include <array>

namespace wentra::analysis {
namespace {

constexpr std::array libraryLineSteps{backslashes, nameKey, spacedColon, pathKey, abortNote};

constexpr std::array<std::u16string_view, 2> libraryKinds{u".dylib", u".framework"};

/// The text up to its first line feed, and that.
std::u16string_view firstLine(std::u16string_view text) {
    return text.substr(0, text.find(u'\n') + 1); // npos + 1 is nothing
}

void addLines(std::u16string_view text, std::vector<std::u16string_view>& lines) {
    while (!text.empty()) {
        const std::u16string_view line = firstLine(text);
        lines.push_back(line.substr(0, line.size() - 1));
        text.remove_prefix(line.size());
    }
}

} // namespace

std::vector<std::u16string_view> LibraryLines::all() const {
    std::vector<std::u16string_view> lines;
    addLines(system, lines);
    addLines(others, lines);
    return lines;
}

void addLibraryLines(std::u16string_view text, SystemList list, LibraryLines& lines) {
    const std::u16string clean = cleaned(linesHolding(text, libraryKinds), u"\n", libraryLineSteps);
    for (std::u16string_view rest = clean; !rest.empty();) {
        const std::u16string_view line = firstLine(rest);
        (isSystemLine(line, list) ? lines.system : lines.others).append(line);
        rest.remove_prefix(line.size());
    }
}

LibraryLines libraryLines(ns::String text, SystemList list) {
    LibraryLines lines;
    LineBlocks blocks(text);
    for (auto block = blocks.next(); !block.empty(); block = blocks.next()) {
        addLibraryLines(block, list, lines);
    }
    return lines;
}

} // namespace wentra::analysis
