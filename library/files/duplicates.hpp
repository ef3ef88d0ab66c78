// Files of equal size below a folder, and which of them a clean-up keeps.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace wentra::files {

/// Paths of files of one size, in the order in which they were found.
struct SizeGroup {
    std::uint64_t size = 0;
    std::vector<std::string> paths;
};

/// The regular files below the folder by their size, the smallest first, hidden ones included.
/// Links are neither counted nor followed; what cannot be read is left out. Any thread.
[[nodiscard]] std::vector<SizeGroup> groupedBySize(const std::string& folder);

/// Which name a clean-up keeps.
enum class Keeps { longestName, shortestName };

/// The path whose last component (text, in UTF-16 units) is the longest or the shortest, the first
/// of equal ones. There must be at least one.
[[nodiscard]] const std::string& keeper(const std::vector<std::string>& paths, Keeps keeps);

/// What the finder says about groups of two or more.
[[nodiscard]] std::u16string duplicateReport(const std::vector<SizeGroup>& groups);

} // namespace wentra::files
