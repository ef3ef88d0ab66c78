// The line that the image viewer shows of an image.
#pragma once

#include "bindings/coregraphics/geometry.hpp"

#include <string>
#include <string_view>

namespace wentra::files {

/// The file's name, the size in pixels, the ratio of width to height, and the size of the file as
/// it is to be read. Of what is no image the size is 0, and the ratio none.
[[nodiscard]] std::u16string imageInfo(std::u16string_view name, CGSize pixels,
                                       std::u16string_view fileSize);

} // namespace wentra::files
