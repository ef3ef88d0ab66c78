// Translates the canvas's words into Cairo's, keeping Cairo from invalid values.
#include "desktop/drawing/canvas.hpp"

#include "desktop/drawing/shadow.hpp"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <optional>

namespace desktop {
namespace {

// Cairo's coordinates are fixed-point numbers of limited range.
constexpr double farAway = 1e6;

// The part of a rectangle that can be drawn; nothing when it has no area or is not a number.
std::optional<Rectangle> drawable(const Rectangle& area) {
    const double left = std::max(area.x, -farAway);
    const double top = std::max(area.y, -farAway);
    const double right = std::min(area.x + area.width, farAway);
    const double bottom = std::min(area.y + area.height, farAway);
    if (!(right > left && bottom > top) || std::isnan(area.x) || std::isnan(area.y)) {
        return std::nullopt;
    }
    return Rectangle{left, top, right - left, bottom - top};
}

/// From the pixels of an image to the area that it fills.
AffineTransform fitting(const Image& image, const Rectangle& area) {
    return {.a = area.width / image.pixelWidth(),
            .d = area.height / image.pixelHeight(),
            .tx = area.x,
            .ty = area.y};
}

void addRoundedRectangle(cairo_t* context, const Rectangle& area, double wantedRadius) {
    constexpr double quarter = std::numbers::pi / 2;
    const double largest = std::min(area.width, area.height) / 2;
    const double radius = wantedRadius > 0 ? std::min(wantedRadius, largest) : 0;
    if (radius <= 0) {
        cairo_rectangle(context, area.x, area.y, area.width, area.height);
        return;
    }
    const double right = area.x + area.width;
    const double bottom = area.y + area.height;
    cairo_new_sub_path(context);
    cairo_arc(context, right - radius, area.y + radius, radius, -quarter, 0);
    cairo_arc(context, right - radius, bottom - radius, radius, 0, quarter);
    cairo_arc(context, area.x + radius, bottom - radius, radius, quarter, 2 * quarter);
    cairo_arc(context, area.x + radius, area.y + radius, radius, 2 * quarter, 3 * quarter);
    cairo_close_path(context);
}

double unit(double component) { return component > 0 ? std::min(component, 1.0) : 0; }

double usable(double scale) { return scale > 0 && std::isfinite(scale) ? scale : 1; }

int pixels(double points, double scale) {
    const double count = std::ceil(points * usable(scale) - 1e-6);
    return count >= 1 ? static_cast<int>(std::min(count, double{Image::largestSide})) : 1;
}

bool isFinite(const cairo_matrix_t& matrix) {
    return std::isfinite(matrix.xx) && std::isfinite(matrix.xy) && std::isfinite(matrix.yx) &&
           std::isfinite(matrix.yy) && std::isfinite(matrix.x0) && std::isfinite(matrix.y0);
}

/// A recording refers to the pixels that are drawn into it; if they went before it does, it would
/// copy them first.
void keepPixels(cairo_surface_t* target, cairo_surface_t* pixels) {
    if (cairo_surface_get_type(target) == CAIRO_SURFACE_TYPE_RECORDING) {
        const auto* key = reinterpret_cast<const cairo_user_data_key_t*>(pixels);
        cairo_surface_set_user_data(target, key, cairo_surface_reference(pixels), [](void* kept) {
            cairo_surface_destroy(static_cast<cairo_surface_t*>(kept));
        });
    }
}

} // namespace

Canvas::Canvas(Size size, double scale)
    : Canvas(pixels(size.width, scale), pixels(size.height, scale), scale) {}

Canvas::Canvas(int width, int height, double scale) : scale_(usable(scale)) {
    cairo_surface_t* surface =
        cairo_image_surface_create(CAIRO_FORMAT_ARGB32, std::clamp(width, 1, Image::largestSide),
                                   std::clamp(height, 1, Image::largestSide));
    context_.reset(cairo_create(surface), cairo_destroy);
    cairo_surface_destroy(surface);
    cairo_scale(context(), scale_, scale_);
}

Canvas::Canvas(cairo_t* context) : context_(cairo_reference(context), cairo_destroy) {}

void Canvas::save() { cairo_save(context()); }

void Canvas::restore() { cairo_restore(context()); }

bool Canvas::translate(double x, double y) { return concatenate({.tx = x, .ty = y}); }

bool Canvas::concatenate(const AffineTransform& transform) {
    cairo_matrix_t matrix;
    cairo_matrix_init(&matrix, transform.a, transform.b, transform.c, transform.d, transform.tx,
                      transform.ty);
    cairo_matrix_t current;
    cairo_get_matrix(context(), &current);
    cairo_matrix_multiply(&current, &matrix, &current);
    cairo_matrix_t inverse = current;
    if (!isFinite(current) || cairo_matrix_invert(&inverse) != CAIRO_STATUS_SUCCESS) {
        return false;
    }
    cairo_set_matrix(context(), &current);
    return true;
}

void Canvas::clip(const Rectangle& area, double cornerRadius) {
    cairo_new_path(context());
    addRoundedRectangle(context(), drawable(area).value_or(Rectangle{}), cornerRadius);
    cairo_clip(context());
}

void Canvas::fill(const Rectangle& area, const Colour& colour, double cornerRadius) {
    const auto visible = drawable(area);
    if (!visible) {
        return;
    }
    cairo_new_path(context());
    addRoundedRectangle(context(), *visible, cornerRadius);
    setColour(colour);
    cairo_fill(context());
}

void Canvas::stroke(const Rectangle& area, const Colour& colour, double lineWidth,
                    double cornerRadius) {
    const auto visible = drawable(area);
    if (!visible || !(lineWidth > 0)) {
        return;
    }
    const double width = std::min({lineWidth, visible->width / 2, visible->height / 2});
    const Rectangle middle{visible->x + width / 2, visible->y + width / 2, visible->width - width,
                           visible->height - width};
    cairo_new_path(context());
    addRoundedRectangle(context(), middle, cornerRadius - width / 2);
    setColour(colour);
    cairo_set_line_width(context(), width);
    cairo_stroke(context());
}

void Canvas::draw(const Image& image, const Rectangle& area) {
    const auto visible = drawable(area);
    if (!visible || image.pixelWidth() == 0 || image.pixelHeight() == 0) {
        return;
    }
    save();
    if (concatenate(fitting(image, area))) {
        cairo_set_source_surface(context(), image.surface(), 0, 0);
        // Otherwise the edges of enlarged pictures would fade into what is behind them.
        cairo_pattern_set_extend(cairo_get_source(context()), CAIRO_EXTEND_PAD);
        cairo_rectangle(context(), 0, 0, image.pixelWidth(), image.pixelHeight());
        cairo_fill(context());
        keepPixels(cairo_get_target(context()), image.surface());
    }
    restore();
}

void Canvas::fillShape(const Image& image, const Rectangle& area, const Colour& colour) {
    if (!drawable(area) || image.pixelWidth() == 0 || image.pixelHeight() == 0) {
        return;
    }
    save();
    if (concatenate(fitting(image, area))) {
        setColour(colour);
        cairo_mask_surface(context(), image.surface(), 0, 0);
    }
    restore();
}

void Canvas::drawShadow(const Rectangle& area, const Colour& colour, Size offset, double blurRadius,
                        double cornerRadius) {
    const auto shape =
        drawable({area.x + offset.width, area.y + offset.height, area.width, area.height});
    if (!shape) {
        return;
    }
    const double radius = blurRadius > 0 && std::isfinite(blurRadius) ? blurRadius : 0;
    setColour(colour);
    paintBlurred(context(), *shape, radius,
                 [&](cairo_t* target) { addRoundedRectangle(target, *shape, cornerRadius); });
}

void Canvas::setColour(const Colour& colour) {
    cairo_set_source_rgba(context(), unit(colour.red), unit(colour.green), unit(colour.blue),
                          unit(colour.alpha));
}

void Canvas::beginGroup() { cairo_push_group(context()); }

void Canvas::endGroup(double alpha) {
    cairo_pop_group_to_source(context());
    cairo_paint_with_alpha(context(), unit(alpha));
}

Image Canvas::snapshot() const {
    cairo_surface_t* source = cairo_get_target(context());
    const bool isImage = cairo_surface_get_type(source) == CAIRO_SURFACE_TYPE_IMAGE;
    const int width = isImage ? cairo_image_surface_get_width(source) : 0;
    const int height = isImage ? cairo_image_surface_get_height(source) : 0;
    const std::shared_ptr<cairo_surface_t> copy(
        cairo_image_surface_create(CAIRO_FORMAT_ARGB32, width, height), cairo_surface_destroy);
    cairo_t* painter = cairo_create(copy.get());
    cairo_set_source_surface(painter, source, 0, 0);
    cairo_paint(painter);
    cairo_destroy(painter);
    return Image::adopt(copy, scale_);
}

} // namespace desktop
