// The settings' package, as an installation puts it on the phone.
#pragma once

#include <filesystem>

namespace desktop::host {

/// Gives the device below `root` the settings' pane, pictures and colours, where its layout has
/// them, unless it has its settings bundle already. Throws std::filesystem::filesystem_error.
void addSettingsBundle(const std::filesystem::path& root);

} // namespace desktop::host
