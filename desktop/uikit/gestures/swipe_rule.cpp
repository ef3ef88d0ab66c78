// Telling swipes.
#include "desktop/uikit/gestures/swipe_rule.hpp"

#include <cmath>

namespace desktop {
namespace {

/// The direction along which the way mainly leads.
SwipeRule::Direction directionOf(CGPoint way) {
    if (std::abs(way.x) >= std::abs(way.y)) {
        return way.x < 0 ? SwipeRule::Direction::left : SwipeRule::Direction::right;
    }
    return way.y < 0 ? SwipeRule::Direction::up : SwipeRule::Direction::down;
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
    const bool made = fingers.size() == touches && objc::haveAny(directions, directionOf(way));
    return made ? GestureStep::end : GestureStep::fail;
}

GestureStep SwipeRule::lifted(Fingers, double) { return GestureStep::fail; }

void SwipeRule::reset() { deadline_.reset(); }

} // namespace desktop
