// The settings bundle's pictures, which a phone has from the package that brings the settings.
#pragma once

#include <filesystem>

namespace desktop::host {

/// Gives the device below `root` a picture for the floating button and the icons of files and
/// toolbars, unless it has its settings bundle already. Throws std::filesystem::filesystem_error.
void addSettingsBundle(const std::filesystem::path& root);

} // namespace desktop::host
