// The system's own marks on the screen: the status bar and the home indicator.
#pragma once

#include "desktop/drawing/canvas.hpp"
#include "desktop/uikit/application/device.hpp"

namespace desktop {

/// Where the status bar draws, on that phone held upright.
[[nodiscard]] Rectangle statusBarArea(const Device& device);
void drawStatusBar(Canvas& canvas, const Device& device, const Colour& ink);

/// The home indicator of a phone without a home button, a bar with round ends, on a screen of that
/// size in points.
[[nodiscard]] Rectangle homeIndicatorArea(Size screen);

/// The colour of both: white on what is dark, else black.
[[nodiscard]] constexpr Colour systemInk(bool onDark) {
    return onDark ? Colour{1, 1, 1, 1} : Colour{0, 0, 0, 1};
}

} // namespace desktop
