// Translating to Cairo's regions.
#include "desktop/drawing/display/region.hpp"

namespace desktop {
namespace {

cairo_rectangle_int_t asCairo(const PixelRectangle& r) { return {r.x, r.y, r.width, r.height}; }

} // namespace

Region regionOf(const PixelRectangle& rectangle) {
    const cairo_rectangle_int_t area = asCairo(rectangle);
    return Region(cairo_region_create_rectangle(&area));
}

Region intersection(const Region& region, const PixelRectangle& rectangle) {
    Region result(cairo_region_copy(region.get()));
    const cairo_rectangle_int_t area = asCairo(rectangle);
    cairo_region_intersect_rectangle(result.get(), &area);
    return result;
}

void subtract(Region& region, const PixelRectangle& rectangle) {
    const cairo_rectangle_int_t area = asCairo(rectangle);
    cairo_region_subtract_rectangle(region.get(), &area);
}

bool isEmpty(const Region& region) { return cairo_region_is_empty(region.get()) != 0; }

PixelRectangle boundsOf(const Region& region) {
    cairo_rectangle_int_t bounds;
    cairo_region_get_extents(region.get(), &bounds);
    return {bounds.x, bounds.y, bounds.width, bounds.height};
}

} // namespace desktop
