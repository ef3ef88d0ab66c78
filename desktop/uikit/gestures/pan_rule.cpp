// Telling and following pans.
#include "desktop/uikit/gestures/pan_rule.hpp"

namespace desktop {

GestureStep PanRule::down(Fingers fingers, double now) {
    if (!begun_ && fingers.size() > maximumTouches) {
        return GestureStep::fail;
    }
    if (!begun_) {
        translation = {};
        latestMove_ = now;
    }
    middle_ = centroid(fingers); // another finger moves the middle, but is no drag
    return GestureStep::none;
}

GestureStep PanRule::moved(Fingers fingers, double now) {
    follow(centroid(fingers), now);
    if (begun_) {
        return GestureStep::change;
    }
    begun_ = fingers.size() >= minimumTouches && distance(translation, {}) >= dragDistance;
    return begun_ ? GestureStep::begin : GestureStep::none;
}

GestureStep PanRule::lifted(Fingers fingers, double now) {
    constexpr double rest = 0.1; // fingers that have rested that long no longer fling
    if (now - latestMove_ > rest) {
        velocity_ = {};
    }
    middle_ = centroid(fingers);
    if (begun_) {
        return fingers.empty() || fingers.size() < minimumTouches ? GestureStep::end
                                                                  : GestureStep::none;
    }
    translation = {};
    return fingers.empty() ? GestureStep::fail : GestureStep::none;
}

void PanRule::follow(CGPoint middle, double now) {
    const CGPoint step{middle.x - middle_.x, middle.y - middle_.y};
    middle_ = middle;
    translation.x += step.x;
    translation.y += step.y;
    if (const double passed = now - latestMove_; passed > 0) {
        velocity_ = {step.x / passed, step.y / passed};
        latestMove_ = now;
    }
}

void PanRule::reset() {
    begun_ = false;
    translation = {};
    velocity_ = {};
}

} // namespace desktop
