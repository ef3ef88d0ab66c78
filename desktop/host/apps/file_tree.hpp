// The files that the files application finds on a fresh device.
#pragma once

namespace desktop::host {

/// The folders that it shows side by side, as device paths.
inline constexpr const char* documentsFolder = "/var/mobile/Documents";
inline constexpr const char* mediaFolder = "/var/mobile/Media";

/// Makes the folders with files of many kinds in them, unless the device has them already.
void makeFileTree();

} // namespace desktop::host
