// Turning a wheel.
#include "desktop/uikit/controls/picker_rules.hpp"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace desktop {

WheelPlace wheelPlace(double distance, double radius) {
    const double angle = distance / radius;
    if (!(std::abs(angle) < std::numbers::pi / 2)) {
        return {std::copysign(radius, distance), 0, 0};
    }
    const double facing = std::cos(angle);
    return {radius * std::sin(angle), facing, facing * facing};
}

long wheelRow(double offset, double rowHeight, long rows) {
    if (rows <= 0 || !(rowHeight > 0) || !std::isfinite(offset)) {
        return 0;
    }
    const double last = static_cast<double>(rows - 1);
    return static_cast<long>(std::clamp(std::round(offset / rowHeight), 0.0, last));
}

double wheelDistance(double offset, double radius) {
    return radius * std::asin(std::clamp(offset / radius, -1.0, 1.0));
}

} // namespace desktop
