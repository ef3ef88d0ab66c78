// Cairo's surfaces of pixels: making them, and painting one onto another.
#pragma once

#include "desktop/drawing/handle.hpp"

#include <cairo.h>

#include <memory>

namespace desktop {

/// A clear one.
inline std::shared_ptr<cairo_surface_t> makeSurface(int width, int height,
                                                    cairo_format_t format = CAIRO_FORMAT_ARGB32) {
    return {cairo_image_surface_create(format, width, height), cairo_surface_destroy};
}

/// Paints the source onto the target so that (x, y) of it comes to the top left corner.
inline void paintFrom(cairo_surface_t* target, cairo_surface_t* source, int x, int y,
                      cairo_operator_t mode = CAIRO_OPERATOR_SOURCE) {
    const Handle<cairo_t, cairo_destroy> painter(cairo_create(target));
    cairo_set_operator(painter.get(), mode);
    cairo_set_source_surface(painter.get(), source, -x, -y);
    cairo_paint(painter.get());
}

} // namespace desktop
