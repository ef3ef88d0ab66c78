// The files of a phone that has been in use.
#pragma once

#include <filesystem>

namespace desktop::host {

/// Gives a device that has no crash reports yet some of them, and bookmarks, text replacements and
/// accounts: what the tools that read the system's files work on; and the folders that the files
/// application shows. Files that are there stay.
void addDeviceFiles(const std::filesystem::path& root);

} // namespace desktop::host
