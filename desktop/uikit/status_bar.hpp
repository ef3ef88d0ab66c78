// The system's own marks on the screen: the status bar and the home indicator.
#pragma once

#include "desktop/drawing/canvas.hpp"

namespace desktop {

/// Draws both over the application's windows, for a screen of that size in points.
void drawSystemOverlays(Canvas& canvas, Size screen);

} // namespace desktop
