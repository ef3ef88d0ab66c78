// Sets of pixels, made of rectangles.
#pragma once

#include "desktop/drawing/display/pixel_rectangle.hpp"
#include "desktop/drawing/handle.hpp"

#include <cairo.h>

namespace desktop {

using Region = Handle<cairo_region_t, cairo_region_destroy>;

[[nodiscard]] Region regionOf(const PixelRectangle& rectangle);
[[nodiscard]] Region intersection(const Region& region, const PixelRectangle& rectangle);
void subtract(Region& region, const PixelRectangle& rectangle);
[[nodiscard]] bool isEmpty(const Region& region);
[[nodiscard]] PixelRectangle boundsOf(const Region& region);

} // namespace desktop
