// Copies of what the build has made, for a device that lacks it.
#pragma once

#include <filesystem>

namespace desktop::host {

/// Copies each file below `from`, with its time, to its place below `to`, unless a file is there.
/// A request to stop ends it before its time. Throws std::filesystem::filesystem_error.
void copyMissingFiles(const std::filesystem::path& from, const std::filesystem::path& to);

} // namespace desktop::host
