// Rectangles of whole pixels.
#pragma once

#include "desktop/drawing/geometry.hpp"

#include <vector>

namespace desktop {

/// (0, 0) is the top left pixel; empty without a positive width and height.
struct PixelRectangle {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    bool operator==(const PixelRectangle&) const = default;

    [[nodiscard]] bool isEmpty() const { return width <= 0 || height <= 0; }
    [[nodiscard]] long long area() const {
        return isEmpty() ? 0 : static_cast<long long>(width) * height;
    }
    [[nodiscard]] PixelRectangle moved(int right, int down) const {
        return {x + right, y + down, width, height};
    }
};

[[nodiscard]] PixelRectangle intersection(const PixelRectangle& a, const PixelRectangle& b);
/// The smallest rectangle around both; an empty one does not count.
[[nodiscard]] PixelRectangle bounding(const PixelRectangle& a, const PixelRectangle& b);
[[nodiscard]] bool contains(const PixelRectangle& outer, const PixelRectangle& inner);

/// The edge between pixels nearest to a place that is told in pixels. Screens and upright boxes on
/// them are measured by this alone, so that what fills a screen in points fills it in pixels.
[[nodiscard]] double nearestEdge(double place);
/// The pixels of a screen of that size in points.
[[nodiscard]] PixelRectangle screenPixels(Size size, double pixelsPerPoint);

/// The pixels that an area touches, or (`pixelsInside`) covers wholly, as far as they lie in
/// `limits`. Empty when the area is not a number.
[[nodiscard]] PixelRectangle pixelsAround(const Rectangle& area, const PixelRectangle& limits);
[[nodiscard]] PixelRectangle pixelsInside(const Rectangle& area, const PixelRectangle& limits);

/// A handful of disjoint rectangles that cover all that were added, and as little else as is cheap
/// to find out.
class PixelArea {
public:
    /// An empty rectangle adds nothing.
    void add(PixelRectangle rectangle);
    [[nodiscard]] const std::vector<PixelRectangle>& rectangles() const { return rectangles_; }

private:
    void uniteCheapest();

    std::vector<PixelRectangle> rectangles_;
};

} // namespace desktop
