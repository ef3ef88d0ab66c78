// Keeps, cleans and sorts.
#include "library/analysis/library_lines.hpp"

#include "library/analysis/line_cleaning.hpp"
#include "library/analysis/lines_holding.hpp"
#include "library/common/line_blocks.hpp"
#include "library/common/text_search.hpp"

#include <algorithm>
#include <array>

namespace wentra::analysis {
namespace {

constexpr std::array libraryLineSteps{backslashes, nameKey, spacedColon, pathKey, abortNote};

/// Whether a library's or framework's name ends where the text begins.
bool isLibraryKind(std::u16string_view text) {
    return text.starts_with(u".dylib") || text.starts_with(u".framework");
}

/// Hands over where each line of a text that ends with one starts, and where the next does.
template <class Visit>
void forEachLine(std::u16string_view text, Visit visit) {
    const TextSearch lineFeeds(text, u"\n");
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = std::min(lineFeeds.next(start) + 1, text.size());
        visit(start, end);
        start = end;
    }
}

void addPiece(std::u16string_view text, std::vector<std::u16string>& pieces) {
    if (!text.empty()) {
        pieces.emplace_back(text);
    }
}

void addLines(const std::vector<std::u16string>& pieces, std::vector<std::u16string_view>& lines) {
    for (const std::u16string_view piece : pieces) {
        forEachLine(piece, [&](std::size_t start, std::size_t end) {
            lines.push_back(piece.substr(start, end - 1 - start));
        });
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
    const std::u16string clean =
        cleaned(linesWhere(text, u".", &isLibraryKind), u"\n", libraryLineSteps);
    std::u16string system;
    std::u16string others;
    SystemNames names(clean, list);
    forEachLine(clean, [&](std::size_t start, std::size_t end) {
        (names.standIn(start, end) ? system : others).append(clean, start, end - start);
    });
    addPiece(system, lines.system);
    addPiece(others, lines.others);
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
