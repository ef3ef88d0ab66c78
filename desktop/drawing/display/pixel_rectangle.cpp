// Meeting and uniting rectangles of pixels.
#include "desktop/drawing/display/pixel_rectangle.hpp"

#include <algorithm>
#include <cmath>
#include <limits>

namespace desktop {
namespace {

PixelRectangle between(int left, int top, int right, int bottom) {
    return right > left && bottom > top ? PixelRectangle{left, top, right - left, bottom - top}
                                        : PixelRectangle{};
}

/// From edges that may lie anywhere. Comparisons with NaN are false, which leaves nothing.
PixelRectangle limited(double left, double top, double right, double bottom,
                       const PixelRectangle& limits) {
    const double x = std::max(left, static_cast<double>(limits.x));
    const double y = std::max(top, static_cast<double>(limits.y));
    const double farX = std::min(right, static_cast<double>(limits.x) + limits.width);
    const double farY = std::min(bottom, static_cast<double>(limits.y) + limits.height);
    if (!(left < right && top < bottom && x < farX && y < farY)) {
        return {};
    }
    return between(static_cast<int>(x), static_cast<int>(y), static_cast<int>(farX),
                   static_cast<int>(farY));
}

/// How many pixels too many one rectangle around both has.
long long waste(const PixelRectangle& a, const PixelRectangle& b) {
    return bounding(a, b).area() - a.area() - b.area();
}

} // namespace

PixelRectangle intersection(const PixelRectangle& a, const PixelRectangle& b) {
    return between(std::max(a.x, b.x), std::max(a.y, b.y), std::min(a.x + a.width, b.x + b.width),
                   std::min(a.y + a.height, b.y + b.height));
}

PixelRectangle bounding(const PixelRectangle& a, const PixelRectangle& b) {
    if (a.isEmpty() || b.isEmpty()) {
        return a.isEmpty() ? b : a;
    }
    return between(std::min(a.x, b.x), std::min(a.y, b.y), std::max(a.x + a.width, b.x + b.width),
                   std::max(a.y + a.height, b.y + b.height));
}

bool contains(const PixelRectangle& outer, const PixelRectangle& inner) {
    return intersection(outer, inner) == inner || inner.isEmpty();
}

double nearestEdge(double place) {
    constexpr double farAway = 1e8; // nothing can be seen there, and whole numbers end
    return std::clamp(std::round(place), -farAway, farAway);
}

PixelRectangle screenPixels(Size size, double pixelsPerPoint) {
    return {0, 0, static_cast<int>(nearestEdge(size.width * pixelsPerPoint)),
            static_cast<int>(nearestEdge(size.height * pixelsPerPoint))};
}

PixelRectangle pixelsAround(const Rectangle& area, const PixelRectangle& limits) {
    return limited(std::floor(area.x), std::floor(area.y), std::ceil(area.x + area.width),
                   std::ceil(area.y + area.height), limits);
}

PixelRectangle pixelsInside(const Rectangle& area, const PixelRectangle& limits) {
    return limited(std::ceil(area.x), std::ceil(area.y), std::floor(area.x + area.width),
                   std::floor(area.y + area.height), limits);
}

void PixelArea::add(PixelRectangle rectangle) {
    if (rectangle.isEmpty()) {
        return;
    }
    // Two that overlap, or whose union costs next to nothing, become one; that one may overlap yet
    // another.
    constexpr long long cheap = 1024;
    for (auto other = rectangles_.begin(); other != rectangles_.end();) {
        if (!intersection(rectangle, *other).isEmpty() || waste(rectangle, *other) <= cheap) {
            rectangle = bounding(rectangle, *other);
            rectangles_.erase(other);
            other = rectangles_.begin();
        } else {
            ++other;
        }
    }
    rectangles_.push_back(rectangle);
    constexpr std::size_t most = 8;
    if (rectangles_.size() > most) {
        uniteCheapest();
    }
}

void PixelArea::uniteCheapest() {
    std::size_t first = 0;
    std::size_t second = 1;
    long long least = std::numeric_limits<long long>::max();
    for (std::size_t i = 0; i < rectangles_.size(); ++i) {
        for (std::size_t j = i + 1; j < rectangles_.size(); ++j) {
            if (const long long cost = waste(rectangles_[i], rectangles_[j]); cost < least) {
                least = cost;
                first = i;
                second = j;
            }
        }
    }
    const PixelRectangle united = bounding(rectangles_[first], rectangles_[second]);
    rectangles_.erase(rectangles_.begin() + static_cast<std::ptrdiff_t>(second));
    rectangles_.erase(rectangles_.begin() + static_cast<std::ptrdiff_t>(first));
    add(united);
}

} // namespace desktop
