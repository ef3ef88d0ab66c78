// Draws a display list onto a surface of pixels.
#pragma once

#include "desktop/drawing/display/content_store.hpp"
#include "desktop/drawing/display/visibility.hpp"

namespace desktop {

/// Draws the list's items as far as they lie in `area`, over what the surface shows there. The
/// pixels that come out do not depend on what else is in the area.
void paint(const DisplayList& list, const PixelArea& area, cairo_surface_t* surface,
           ContentStore& contents, const ContentDrawer& draw);

} // namespace desktop
