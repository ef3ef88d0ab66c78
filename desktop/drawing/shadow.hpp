// Paints the soft shadow of a shape.
#pragma once

#include "desktop/drawing/geometry.hpp"

#include <cairo.h>

#include <functional>

namespace desktop {

/// Paints the context's current source through the blurred coverage of a shape; `blurRadius`, not
/// negative and finite, is the standard deviation in points. `addPath` adds the shape's path, which
/// lies within `bounds`, to the context it is given.
void paintBlurred(cairo_t* context, const Rectangle& bounds, double blurRadius,
                  const std::function<void(cairo_t*)>& addPath);

} // namespace desktop
