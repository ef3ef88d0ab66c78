// Affine transforms and rectangles.
#include "desktop/coregraphics/affine.hpp"

#include <algorithm>
#include <array>
#include <cmath>

namespace desktop {

CGPoint apply(const CGAffineTransform& t, CGPoint p) {
    return {t.a * p.x + t.c * p.y + t.tx, t.b * p.x + t.d * p.y + t.ty};
}

CGRect apply(const CGAffineTransform& transform, CGRect rect) {
    const double right = rect.origin.x + rect.size.width;
    const double bottom = rect.origin.y + rect.size.height;
    const std::array corners{
        apply(transform, rect.origin), apply(transform, CGPoint{right, rect.origin.y}),
        apply(transform, CGPoint{rect.origin.x, bottom}), apply(transform, CGPoint{right, bottom})};
    const auto [left, farRight] = std::ranges::minmax(corners, {}, &CGPoint::x);
    const auto [top, farBottom] = std::ranges::minmax(corners, {}, &CGPoint::y);
    return {{left.x, top.y}, {farRight.x - left.x, farBottom.y - top.y}};
}

CGAffineTransform concatenated(const CGAffineTransform& f, const CGAffineTransform& s) {
    return {f.a * s.a + f.b * s.c, f.a * s.b + f.b * s.d,          f.c * s.a + f.d * s.c,
            f.c * s.b + f.d * s.d, f.tx * s.a + f.ty * s.c + s.tx, f.tx * s.b + f.ty * s.d + s.ty};
}

std::optional<CGAffineTransform> inverted(const CGAffineTransform& t) {
    const double determinant = t.a * t.d - t.b * t.c;
    if (determinant == 0 || !std::isfinite(determinant)) {
        return std::nullopt;
    }
    return CGAffineTransform{t.d / determinant,
                             -t.b / determinant,
                             -t.c / determinant,
                             t.a / determinant,
                             (t.c * t.ty - t.d * t.tx) / determinant,
                             (t.b * t.tx - t.a * t.ty) / determinant};
}

CGRect standardised(CGRect rect) {
    rect.origin.x += std::min(0.0, rect.size.width);
    rect.origin.y += std::min(0.0, rect.size.height);
    return {rect.origin, {std::abs(rect.size.width), std::abs(rect.size.height)}};
}

bool contains(CGRect rect, CGPoint point) {
    return point.x >= rect.origin.x && point.x < rect.origin.x + rect.size.width &&
           point.y >= rect.origin.y && point.y < rect.origin.y + rect.size.height;
}

bool intersects(CGRect one, CGRect other) {
    return one.origin.x < other.origin.x + other.size.width &&
           other.origin.x < one.origin.x + one.size.width &&
           one.origin.y < other.origin.y + other.size.height &&
           other.origin.y < one.origin.y + one.size.height;
}

bool hasNaN(CGRect rect) {
    return std::isnan(rect.origin.x) || std::isnan(rect.origin.y) || std::isnan(rect.size.width) ||
           std::isnan(rect.size.height);
}

CGPoint centre(CGRect rect) {
    return {rect.origin.x + rect.size.width / 2, rect.origin.y + rect.size.height / 2};
}

} // namespace desktop
