// The lines of a crash report that name libraries.
#pragma once

#include "bindings/foundation/string.hpp"
#include "library/analysis/system_libraries.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace wentra::analysis {

/// Cleaned lines, each sort in the text's order, a line feed behind each; in pieces of whole lines,
/// since a text that grows is copied again and again.
struct LibraryLines {
    std::vector<std::u16string> system;
    std::vector<std::u16string> others;

    /// Each of them without its end, the system's first; views of these texts.
    [[nodiscard]] std::vector<std::u16string_view> all() const;
};

/// Adds the lines of the text (ended by "\n" alone) that name a library or framework.
void addLibraryLines(std::u16string_view text, SystemList list, LibraryLines& lines);

/// Those of a whole text; none of nil.
[[nodiscard]] LibraryLines libraryLines(ns::String text, SystemList list);

} // namespace wentra::analysis
