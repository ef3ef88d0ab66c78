// What a file is taken for by its extension.
#pragma once

#include <string_view>

namespace wentra::files {

/// The picture file of a file that is no folder, by its extension in any letters: "zip_icon.png".
/// Empty where none is known: the picture stays as it is.
[[nodiscard]] std::string_view iconOf(std::string_view path);

/// The picture file of a folder.
inline constexpr std::string_view folderIcon = "folder_icon.png";

/// Whether the image viewer takes the file; fewer than have an image's icon.
[[nodiscard]] bool isImage(std::string_view path);

/// Whether the text viewer takes the file.
[[nodiscard]] bool isText(std::string_view path);

} // namespace wentra::files
