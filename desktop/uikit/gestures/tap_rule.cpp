// Telling taps.
#include "desktop/uikit/gestures/tap_rule.hpp"

namespace desktop {

GestureStep TapRule::down(Fingers fingers, double now) {
    if (fingers.size() > touches || phase_ == Phase::lifting) {
        return GestureStep::fail;
    }
    if (phase_ == Phase::up) {
        phase_ = Phase::comingDown;
        deadline_ = now + longestTap;
    }
    if (fingers.size() == touches) {
        phase_ = Phase::allDown;
        const CGPoint here = centroid(fingers);
        if (made_ == 0) {
            place_ = here;
        } else if (distance(here, place_) > allowedDistance) {
            return GestureStep::fail;
        }
    }
    return GestureStep::none;
}

GestureStep TapRule::moved(Fingers fingers, double) {
    return strayed(fingers, allowedDistance) ? GestureStep::fail : GestureStep::none;
}

GestureStep TapRule::lifted(Fingers fingers, double now) {
    if (phase_ == Phase::comingDown) {
        return GestureStep::fail; // too few fingers
    }
    phase_ = Phase::lifting;
    if (!fingers.empty()) {
        return GestureStep::none;
    }
    phase_ = Phase::up;
    if (++made_ >= taps) {
        deadline_.reset();
        return GestureStep::end;
    }
    deadline_ = now + longestPause;
    return GestureStep::none;
}

void TapRule::reset() {
    phase_ = Phase::up;
    made_ = 0;
    deadline_.reset();
}

} // namespace desktop
