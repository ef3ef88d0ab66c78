// The arithmetic of zooming and dropping.
#include "library/common/zoom.hpp"

#include <algorithm>
#include <cmath>

namespace wentra {

CGAffineTransform scaled(CGAffineTransform transform, double factor) {
    transform.a *= factor;
    transform.b *= factor;
    transform.c *= factor;
    transform.d *= factor;
    return transform;
}

CGAffineTransform pinched(const CGAffineTransform& transform, double scale) {
    const double current = std::sqrt(transform.a * transform.a + transform.c * transform.c);
    const double wanted = std::max(std::min(scale * current, largestPinch), smallestPinch);
    const double factor = wanted / current;
    return std::isfinite(factor) ? scaled(transform, factor) : transform;
}

CGAffineTransform doubleTapped(const CGAffineTransform& transform) {
    return transform.a == 1 ? scaled({}, doubleTapScale) : CGAffineTransform();
}

bool overlap(const CGRect& one, const CGRect& other) {
    return one.origin.x < other.origin.x + other.size.width &&
           other.origin.x < one.origin.x + one.size.width &&
           one.origin.y < other.origin.y + other.size.height &&
           other.origin.y < one.origin.y + one.size.height;
}

} // namespace wentra
