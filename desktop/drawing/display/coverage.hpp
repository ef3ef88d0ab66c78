// How far a shape that is no plain rectangle covers each pixel.
#pragma once

#include "desktop/drawing/display/placed_box.hpp"
#include "desktop/drawing/handle.hpp"

#include <cairo.h>

#include <vector>

namespace desktop {

using Surface = Handle<cairo_surface_t, cairo_surface_destroy>;

/// The parts of the screen, within `limits`, in which a box, or its border of that width, is no
/// plain rectangle: its round corners, or all of a turned box. Disjoint.
[[nodiscard]] std::vector<PixelRectangle> curvedParts(const PlacedBox& shape, double lineWidth,
                                                      const PixelRectangle& limits);

/// The coverage of the box, or (with a line width) of its border, in one of those parts. Each part
/// is computed as a whole: what comes out for a pixel does not depend on what is redrawn.
[[nodiscard]] Surface coverage(const PlacedBox& shape, double lineWidth,
                               const PixelRectangle& part);

} // namespace desktop
