// The icons of the settings bundle: one set of coloured tiles that stand out on light and dark.
#pragma once

#include <filesystem>
#include <span>

namespace desktop::host {

/// A tile: the file's name, without extension, and the symbol on it.
struct BundleIcon {
    const char* name;
    const char* symbol;
    /// 0xRRGGBB.
    unsigned colour;
};

/// Those of files by their kind, and those of the browser's toolbar.
[[nodiscard]] std::span<const BundleIcon> bundleIcons();

/// Draws all of them into the folder, which must be there, as PNG files.
void drawBundleIcons(const std::filesystem::path& folder);

} // namespace desktop::host
