// The lines of a crash report that name libraries.
#pragma once

#include "library/analysis/system_libraries.hpp"

#include <string>
#include <vector>

namespace wentra::analysis {

/// Cleaned lines, each sort in the text's order.
struct LibraryLines {
    std::vector<std::u16string> system;
    std::vector<std::u16string> others;

    /// All of them, the system's first.
    [[nodiscard]] std::vector<std::u16string> all() const {
        std::vector<std::u16string> lines = system;
        lines.insert(lines.end(), others.begin(), others.end());
        return lines;
    }
};

/// The lines of the text (ended by "\n" alone) that name a library or framework.
[[nodiscard]] LibraryLines libraryLines(std::u16string_view text, SystemList list);

} // namespace wentra::analysis
