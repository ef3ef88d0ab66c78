// Taking changed pixels out of the picture of the screen.
#pragma once

#include "desktop/uikit/application/screen_image.hpp"
#include "desktop/viewer/frame.hpp"

namespace desktop::viewer {

/// A copy of that region, which must lie within the image. Main thread.
[[nodiscard]] Patch copied(const ScreenImage& image, const PixelRectangle& region);

} // namespace desktop::viewer
