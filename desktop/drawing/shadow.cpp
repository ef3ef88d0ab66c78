// Blurs a shape's coverage by three passes of a moving average, which come close to a Gaussian.
#include "desktop/drawing/shadow.hpp"

#include "desktop/drawing/handle.hpp"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

namespace desktop {
namespace {

using Surface = Handle<cairo_surface_t, cairo_surface_destroy>;
using CairoContext = Handle<cairo_t, cairo_destroy>;

// A blur hides detail: larger shadows are made at a lower resolution.
constexpr double largestSide = 1024;
constexpr int passes = 3;

struct Coverage {
    unsigned char* data;
    std::ptrdiff_t width;
    std::ptrdiff_t height;
    std::ptrdiff_t stride;
};

// Replaces each of the bytes, `step` apart, by the mean of itself and `reach` neighbours on either
// side.
void average(unsigned char* first, std::ptrdiff_t count, std::ptrdiff_t step, std::ptrdiff_t reach,
             std::vector<unsigned char>& line) {
    for (std::ptrdiff_t index = 0; index < count; ++index) {
        line[static_cast<std::size_t>(index + reach)] = first[index * step];
    }
    const std::ptrdiff_t span = 2 * reach + 1;
    std::ptrdiff_t sum = 0;
    for (std::ptrdiff_t index = 0; index < span - 1; ++index) {
        sum += line[static_cast<std::size_t>(index)];
    }
    for (std::ptrdiff_t index = 0; index < count; ++index) {
        sum += line[static_cast<std::size_t>(index + span - 1)];
        first[index * step] = static_cast<unsigned char>((sum + reach) / span);
        sum -= line[static_cast<std::size_t>(index)];
    }
}

void blur(const Coverage& coverage, double deviation) {
    const double ideal = deviation * 3 * std::sqrt(2 * std::numbers::pi) / 4;
    const auto reach = static_cast<std::ptrdiff_t>(std::lround(ideal / 2));
    const auto longest = static_cast<std::size_t>(std::max(coverage.width, coverage.height));
    // The margins of the line stay zero: nothing is covered out there.
    std::vector<unsigned char> line(longest + 2 * static_cast<std::size_t>(reach));
    for (std::ptrdiff_t y = 0; reach > 0 && y < coverage.height; ++y) {
        for (int pass = 0; pass < passes; ++pass) {
            average(coverage.data + y * coverage.stride, coverage.width, 1, reach, line);
        }
    }
    std::ranges::fill(line, static_cast<unsigned char>(0));
    for (std::ptrdiff_t x = 0; reach > 0 && x < coverage.width; ++x) {
        for (int pass = 0; pass < passes; ++pass) {
            average(coverage.data + x, coverage.height, coverage.stride, reach, line);
        }
    }
}

double pixelsPerPoint(cairo_t* context) {
    double x = 1;
    double y = 0;
    cairo_user_to_device_distance(context, &x, &y);
    return std::hypot(x, y);
}

} // namespace

void paintBlurred(cairo_t* context, const Rectangle& bounds, double blurRadius,
                  const std::function<void(cairo_t*)>& addPath) {
    const double margin = std::ceil(passes * blurRadius) + 1;
    const double width = bounds.width + 2 * margin;
    const double height = bounds.height + 2 * margin;
    const double scale = std::min(pixelsPerPoint(context), largestSide / std::max(width, height));
    const int columns = static_cast<int>(std::ceil(width * scale));
    const int rows = static_cast<int>(std::ceil(height * scale));
    const Surface surface(cairo_image_surface_create(CAIRO_FORMAT_A8, columns, rows));
    const CairoContext shape(cairo_create(surface.get()));
    cairo_scale(shape.get(), scale, scale);
    cairo_translate(shape.get(), margin - bounds.x, margin - bounds.y);
    addPath(shape.get());
    cairo_fill(shape.get());
    cairo_surface_flush(surface.get());
    blur({cairo_image_surface_get_data(surface.get()), columns, rows,
          cairo_image_surface_get_stride(surface.get())},
         blurRadius * scale);
    cairo_surface_mark_dirty(surface.get());

    cairo_save(context);
    cairo_translate(context, bounds.x - margin, bounds.y - margin);
    cairo_scale(context, 1 / scale, 1 / scale);
    cairo_mask_surface(context, surface.get(), 0, 0);
    cairo_restore(context);
}

} // namespace desktop
