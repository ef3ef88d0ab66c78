// The system's own marks on the screen: the status bar and the home indicator.
#pragma once

#include "desktop/drawing/canvas.hpp"

namespace desktop {

/// Where the status bar draws, on a screen of that size in points.
[[nodiscard]] Rectangle statusBarArea(Size screen);
void drawStatusBar(Canvas& canvas, Size screen);

/// The home indicator, a bar with round ends.
[[nodiscard]] Rectangle homeIndicatorArea(Size screen);

/// The colour of both.
inline constexpr Colour systemInk{0, 0, 0, 1};

} // namespace desktop
