// Where the pictures and tables the user may replace are looked for.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace wentra::paths {

// Paths are UTF-8 and worked out anew at each call: files may come and go while the process runs.

/// The list of named colours.
std::string colourListPath();

/// The folder of the toolbox's icons, ending in "/".
std::string iconFolder();

/// The icon of that name (UTF-8, without extension).
std::string iconPath(std::string_view name);

/// The floating button's picture: the first candidate that exists, none without one.
std::optional<std::string> ballImagePath();

/// The panel background's candidates, best first; the first that loads as an image is meant.
std::vector<std::string> panelImageCandidates();

} // namespace wentra::paths
