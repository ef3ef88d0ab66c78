// Views drawn into a picture instead of onto the screen.
#include "desktop/coregraphics/graphics_context.hpp"
#include "desktop/drawing/display/painter.hpp"
#include "desktop/uikit/application/compositor.hpp"
#include "desktop/uikit/views/view.hpp"

#include <cmath>

namespace desktop {
namespace {

/// Pixels a point of what the canvas draws on.
double scaleOf(const Canvas& canvas) {
    double across = 1;
    double down = 0;
    cairo_user_to_device_distance(canvas.context(), &across, &down);
    return std::hypot(across, down);
}

Image pictureOf(ui::View view, const Canvas& picture) {
    cairo_surface_t* surface = cairo_get_target(picture.context());
    const PixelRectangle everything{0, 0, cairo_image_surface_get_width(surface),
                                    cairo_image_surface_get_height(surface)};
    const Composition views = composition(view, everything);
    PixelArea area;
    area.add(everything);
    ContentStore contents;
    paint(views.list, area, surface, contents,
          [&views](std::uint64_t stamp, Canvas& canvas) { views.draw(stamp, canvas); });
    return Image::adopt({cairo_surface_reference(surface), cairo_surface_destroy}, 1);
}

} // namespace

/// Whether there was anything to draw on.
bool View::drawHierarchy(CGRect rect, bool afterUpdates) {
    Canvas* canvas = currentCanvas();
    if (canvas != nullptr && afterUpdates) {
        self().layoutIfNeeded();
    }
    return canvas != nullptr && draw(*canvas, rect);
}

bool View::draw(Canvas& canvas, CGRect rect) const {
    const CGSize size = bounds().size;
    if (!(size.width > 0 && size.height > 0 && rect.size.width > 0 && rect.size.height > 0)) {
        return false;
    }
    const Canvas picture({rect.size.width, rect.size.height}, scaleOf(canvas));
    canvas.draw(pictureOf(self(), picture), rectangle(rect));
    return true;
}

} // namespace desktop
