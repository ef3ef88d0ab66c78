// Measuring fingers.
#include "desktop/uikit/gestures/gesture_rule.hpp"

#include <algorithm>
#include <cmath>

namespace desktop {

CGPoint centroid(Fingers fingers) {
    CGPoint sum;
    for (const Finger& finger : fingers) {
        sum.x += finger.point.x;
        sum.y += finger.point.y;
    }
    const double count = std::max(1.0, static_cast<double>(fingers.size()));
    return {sum.x / count, sum.y / count};
}

double distance(CGPoint one, CGPoint other) { return std::hypot(one.x - other.x, one.y - other.y); }

bool strayed(Fingers fingers, double allowed) {
    return std::ranges::any_of(fingers, [allowed](const Finger& finger) {
        return distance(finger.start, finger.point) > allowed;
    });
}

} // namespace desktop
