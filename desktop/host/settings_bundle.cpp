// Copies what the settings' package holds.
#include "desktop/host/settings_bundle.hpp"

#include "desktop/host/file_copies.hpp"

namespace desktop::host {

void addSettingsBundle(const std::filesystem::path& root) {
    const std::filesystem::path made = WENTRA_SETTINGS_FILES;
    const auto jailbreak = root / "var/jb";
    const bool rootless = is_directory(jailbreak);
    const auto prefix = rootless ? jailbreak : root;
    if (!exists(prefix / "Library/PreferenceBundles/hovtanprefs.bundle")) {
        copyMissingFiles(made / (rootless ? "rootless" : "rootful"), prefix);
    }
}

} // namespace desktop::host
