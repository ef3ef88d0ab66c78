// Drawing the screen's windows, and the system's marks over them.
#include "desktop/uikit/screen_image.hpp"

#include "desktop/uikit/application.hpp"
#include "desktop/uikit/compositor.hpp"
#include "desktop/uikit/screen.hpp"
#include "desktop/uikit/status_bar.hpp"
#include "desktop/uikit/uikit.hpp"

#include "bindings/objc/pool.hpp"

#include <utility>

namespace desktop {
namespace {

Size screenSize() {
    const CGSize size = ScreenGeometry::current().size;
    return {size.width, size.height};
}

} // namespace

ScreenImage::ScreenImage(double scale)
    : canvas_(screenSize(), scale),
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
    stale_ = false; // what drawing itself changes is for the next time
    ScreenChanges::shared().await();
    const Size size = screenSize();
    canvas_.fill({0, 0, size.width, size.height}, {0, 0, 0, 1});
    for (const ui::Window window : Application::shared().visibleWindows()) {
        composite(window, canvas_);
    }
    drawSystemOverlays(canvas_, size);
    return {{0, 0, width(), height()}};
}

const unsigned char* ScreenImage::pixels() const {
    cairo_surface_t* surface = cairo_get_target(canvas_.context());
    cairo_surface_flush(surface);
    return cairo_image_surface_get_data(surface);
}

int ScreenImage::width() const {
    return cairo_image_surface_get_width(cairo_get_target(canvas_.context()));
}

int ScreenImage::height() const {
    return cairo_image_surface_get_height(cairo_get_target(canvas_.context()));
}

int ScreenImage::stride() const {
    return cairo_image_surface_get_stride(cairo_get_target(canvas_.context()));
}

} // namespace desktop
