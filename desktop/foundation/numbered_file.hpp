// Names for files that are kept beside one another.
#pragma once

#include <filesystem>
#include <string>

namespace desktop::foundation {

/// The first of "PREFIX1SUFFIX", "PREFIX2SUFFIX" and so on that the folder does not have. Makes the
/// folder where it is missing.
[[nodiscard]] std::filesystem::path numberedFile(const std::filesystem::path& folder,
                                                 const std::string& prefix,
                                                 const std::string& suffix);

} // namespace desktop::foundation
