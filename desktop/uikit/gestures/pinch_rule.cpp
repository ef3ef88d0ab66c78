// Telling and following pinches.
#include "desktop/uikit/gestures/pinch_rule.hpp"

#include <algorithm>
#include <cmath>

namespace desktop {
namespace {

constexpr std::size_t fingersOfAPinch = 2;

/// The distance of the first two fingers, at least a point, so that it can be divided by.
double spanOf(Fingers fingers) {
    return std::max(1.0, distance(fingers[0].point, fingers[1].point));
}

} // namespace

GestureStep PinchRule::down(Fingers fingers, double now) {
    if (!begun_ && fingers.size() >= fingersOfAPinch) {
        measureFrom(fingers);
        latestMove_ = now;
    }
    return GestureStep::none;
}

GestureStep PinchRule::moved(Fingers fingers, double now) {
    if (fingers.size() < fingersOfAPinch) {
        return GestureStep::none;
    }
    span_ = spanOf(fingers);
    const bool already = begun_;
    begun_ = begun_ || std::abs(span_ - baseSpan_) >= dragDistance;
    if (!begun_) {
        return GestureStep::none;
    }
    const double former = scale_;
    scale_ = baseScale_ * span_ / baseSpan_;
    if (const double passed = now - latestMove_; passed > 0) {
        velocity_ = (scale_ - former) / passed;
        latestMove_ = now;
    }
    return already ? GestureStep::change : GestureStep::begin;
}

GestureStep PinchRule::lifted(Fingers fingers, double) {
    if (fingers.size() >= fingersOfAPinch) {
        measureFrom(fingers); // other fingers may be the first two now
        return GestureStep::none;
    }
    if (begun_) {
        return GestureStep::end;
    }
    return fingers.empty() ? GestureStep::fail : GestureStep::none;
}

void PinchRule::setScale(double scale) {
    scale_ = scale;
    baseScale_ = scale;
    baseSpan_ = span_;
}

void PinchRule::measureFrom(Fingers fingers) {
    span_ = spanOf(fingers);
    setScale(scale_);
}

void PinchRule::reset() {
    begun_ = false;
    scale_ = 1;
    baseScale_ = 1;
    velocity_ = 0;
}

} // namespace desktop
