// Drawing the screen's windows, and the system's marks over them.
#include "desktop/uikit/application/screen_image.hpp"

#include "desktop/drawing/display/painter.hpp"
#include "desktop/uikit/application/compositor.hpp"
#include "desktop/uikit/application/screen.hpp"
#include "desktop/uikit/uikit.hpp"

#include "bindings/objc/pool.hpp"

#include <cmath>
#include <utility>

namespace desktop {
namespace {

Canvas screenCanvas(Size size, double scale) {
    const PixelRectangle pixels = screenPixels(size, scale);
    return {pixels.width, pixels.height, scale};
}

double usable(double scale) { return scale > 0 && std::isfinite(scale) ? scale : 1; }

} // namespace

ScreenImage::ScreenImage(double scale)
    : size_(screenSize()), scale_(usable(scale)), canvas_(screenCanvas(size_, scale_)),
      ticket_(ScreenChanges::shared().listen([this] { becomeStale(); })) {}

ScreenImage::~ScreenImage() { ScreenChanges::shared().leave(ticket_); }

void ScreenImage::becomeStale() {
    if (!std::exchange(stale_, true) && whenStale_) {
        whenStale_();
    }
}

std::vector<PixelRectangle> ScreenImage::refresh() {
    if (!stale_) {
        return {};
    }
    const objc::Pool pool;
    uikit::layoutWindows();
    if (const Size size = screenSize(); size.width != size_.width || size.height != size_.height) {
        size_ = size;
        canvas_ = screenCanvas(size, scale_);
        shown_ = {};
    }
    stale_ = false; // what drawing itself changes is for the next time
    ScreenChanges::shared().await();
    Composition wanted = composition({0, 0, width(), height()}, scale_);
    // When drawing fails half way, nobody knows what is shown, and the next time draws everything.
    const DisplayList shown = std::exchange(shown_, {});
    const PixelArea area = differences(shown, wanted.list);
    paint(wanted.list, area, surface(), contents_,
          [&wanted](std::uint64_t stamp, Canvas& canvas) { wanted.draw(stamp, canvas); });
    shown_ = std::move(wanted.list);
    return area.rectangles();
}

const unsigned char* ScreenImage::pixels() const {
    cairo_surface_flush(surface());
    return cairo_image_surface_get_data(surface());
}

int ScreenImage::width() const { return cairo_image_surface_get_width(surface()); }

int ScreenImage::height() const { return cairo_image_surface_get_height(surface()); }

int ScreenImage::stride() const { return cairo_image_surface_get_stride(surface()); }

} // namespace desktop
