// The files that the files application finds on a fresh device.
#pragma once

#include <filesystem>

namespace desktop::host {

/// The folders that it shows side by side, as device paths.
inline constexpr const char* documentsFolder = "/var/mobile/Documents";
inline constexpr const char* mediaFolder = "/var/mobile/Media";

/// Makes the folders with files of many kinds in them, those that the device does not have yet.
/// `root` is where its root lies.
void makeFileTree(const std::filesystem::path& root);

} // namespace desktop::host
