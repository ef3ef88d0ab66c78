// The system's own marks on the screen: the status bar and the home indicator.
#pragma once

#include "desktop/drawing/canvas.hpp"

namespace desktop {

/// Where the status bar draws, on a screen of that size in points.
[[nodiscard]] Rectangle statusBarArea(Size screen);
void drawStatusBar(Canvas& canvas, Size screen, const Colour& ink);

/// The home indicator, a bar with round ends.
[[nodiscard]] Rectangle homeIndicatorArea(Size screen);

/// The colour of both: white on what is dark, else black.
[[nodiscard]] constexpr Colour systemInk(bool onDark) {
    return onDark ? Colour{1, 1, 1, 1} : Colour{0, 0, 0, 1};
}

} // namespace desktop
