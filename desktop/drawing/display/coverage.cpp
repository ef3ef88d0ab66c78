// Corners by themselves, so that the rest can be filled at once.
#include "desktop/drawing/display/coverage.hpp"

#include <algorithm>
#include <cmath>

namespace desktop {

std::vector<PixelRectangle> curvedParts(const PlacedBox& shape, double lineWidth,
                                        const PixelRectangle& limits) {
    const Rectangle area = shape.bounds();
    const PixelRectangle all = pixelsAround(area, limits);
    if (!shape.isUpright()) {
        return {all};
    }
    if (!(shape.cornerRadius > 0)) {
        return {};
    }
    const double reach = std::ceil(std::max(shape.cornerRadius, lineWidth));
    if (2 * reach >= std::min(area.width, area.height)) {
        return {all};
    }
    std::vector<PixelRectangle> parts;
    for (const double x : {area.x, area.x + area.width - reach}) {
        for (const double y : {area.y, area.y + area.height - reach}) {
            const PixelRectangle part = pixelsAround({x, y, reach, reach}, limits);
            if (!part.isEmpty()) {
                parts.push_back(part);
            }
        }
    }
    return parts;
}

Surface coverage(const PlacedBox& shape, double lineWidth, const PixelRectangle& part) {
    Surface surface(cairo_image_surface_create(CAIRO_FORMAT_A8, part.width, part.height));
    const Handle<cairo_t, cairo_destroy> context(cairo_create(surface.get()));
    Canvas canvas(context.get());
    canvas.translate(-part.x, -part.y);
    if (canvas.concatenate(shape.place)) {
        if (lineWidth > 0) {
            canvas.stroke(shape.box, {0, 0, 0, 1}, lineWidth, shape.cornerRadius);
        } else {
            canvas.fill(shape.box, {0, 0, 0, 1}, shape.cornerRadius);
        }
    }
    return surface;
}

} // namespace desktop
