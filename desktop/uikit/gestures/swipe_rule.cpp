// Telling swipes.
#include "desktop/uikit/gestures/swipe_rule.hpp"

#include <cmath>

namespace desktop {
namespace {

/// The direction along which the way mainly leads.
unsigned long directionOf(CGPoint way) {
    if (std::abs(way.x) >= std::abs(way.y)) {
        return way.x < 0 ? SwipeRule::leftward : SwipeRule::rightward;
    }
    return way.y < 0 ? SwipeRule::upward : SwipeRule::downward;
}

} // namespace

GestureStep SwipeRule::down(Fingers fingers, double now) {
    if (fingers.size() > touches) {
        return GestureStep::fail;
    }
    start_ = centroid(fingers);
    deadline_ = deadline_.value_or(now + longest);
    return GestureStep::none;
}

GestureStep SwipeRule::moved(Fingers fingers, double) {
    const CGPoint here = centroid(fingers);
    const CGPoint way{here.x - start_.x, here.y - start_.y};
    if (distance(way, {}) < shortest) {
        return GestureStep::none;
    }
    const bool made = fingers.size() == touches && (directionOf(way) & directions) != 0;
    return made ? GestureStep::end : GestureStep::fail;
}

GestureStep SwipeRule::lifted(Fingers, double) { return GestureStep::fail; }

void SwipeRule::reset() { deadline_.reset(); }

} // namespace desktop
