// The stack of open image contexts, and what is drawn in them as pictures.
#include "bindings/uikit/image_context.hpp"

#include "desktop/coregraphics/graphics_context.hpp"
#include "desktop/drawing/handle.hpp"
#include "desktop/uikit/application/screen.hpp"
#include "desktop/uikit/values/image.hpp"

#include <cmath>
#include <vector>

namespace desktop {
namespace {

using Surface = std::shared_ptr<cairo_surface_t>;

/// A picture taller or wider than what Cairo draws is kept as what was drawn, and becomes pixels
/// strip by strip when it is encoded.
Surface surfaceFor(double width, double height, bool opaque) {
    const bool isLarge = std::max(width, height) > Image::largestSide;
    const cairo_rectangle_t extents{0, 0, width, height};
    return {isLarge ? cairo_recording_surface_create(CAIRO_CONTENT_COLOR, &extents)
                    : cairo_image_surface_create(opaque ? CAIRO_FORMAT_RGB24 : CAIRO_FORMAT_ARGB32,
                                                 static_cast<int>(width), static_cast<int>(height)),
            cairo_surface_destroy};
}

Canvas canvasOn(cairo_surface_t* surface, double scale) {
    const Handle<cairo_t, cairo_destroy> painter(cairo_create(surface));
    cairo_scale(painter.get(), scale, scale);
    return Canvas(painter.get());
}

class ImageContext {
public:
    ImageContext(const Surface& surface, double scale)
        : surface_(surface), scale_(scale), canvas_(canvasOn(surface.get(), scale)),
          current_(canvas_) {}

    /// A copy, for drawing may go on.
    [[nodiscard]] ui::Image image() const {
        const bool isPixels = cairo_surface_get_type(surface_.get()) == CAIRO_SURFACE_TYPE_IMAGE;
        const Image drawn = Image::adopt(surface_, scale_);
        return UIImage::from(isPixels ? drawn.copied() : drawn);
    }

private:
    Surface surface_;
    double scale_;
    Canvas canvas_;
    CurrentCanvas current_;
};

/// Null for a size of which there is no picture.
std::unique_ptr<ImageContext> contextOf(CGSize size, bool opaque, double scale) {
    constexpr double largestSide = 1'000'000; // where Cairo's numbers end, with room to spare
    const double pixels = scale > 0 ? scale : ScreenGeometry::current().scale;
    const double width = std::ceil(size.width * pixels);
    const double height = std::ceil(size.height * pixels);
    if (!(width >= 1 && height >= 1 && width <= largestSide && height <= largestSide)) {
        return nullptr;
    }
    return std::make_unique<ImageContext>(surfaceFor(width, height, opaque), pixels);
}

std::vector<std::unique_ptr<ImageContext>>& contexts() {
    thread_local std::vector<std::unique_ptr<ImageContext>> open;
    return open;
}

} // namespace
} // namespace desktop

extern "C" {

void UIGraphicsBeginImageContextWithOptions(CGSize size, bool opaque, double scale) {
    desktop::contexts().push_back(desktop::contextOf(size, opaque, scale));
}

CGContextRef UIGraphicsGetCurrentContext(void) {
    return desktop::contextRef(desktop::currentCanvas());
}

id UIGraphicsGetImageFromCurrentImageContext(void) {
    auto& open = desktop::contexts();
    return open.empty() || !open.back() ? nullptr : open.back()->image().raw();
}

void UIGraphicsEndImageContext(void) {
    if (auto& open = desktop::contexts(); !open.empty()) {
        open.pop_back();
    }
}

} // extern "C"
