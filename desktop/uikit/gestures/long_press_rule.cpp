// Telling long presses.
#include "desktop/uikit/gestures/long_press_rule.hpp"

namespace desktop {

GestureStep LongPressRule::down(Fingers fingers, double now) {
    if (begun_) {
        return GestureStep::none;
    }
    if (fingers.size() > touches) {
        return GestureStep::fail;
    }
    if (fingers.size() == touches) {
        if (minimumDuration <= 0) {
            return timeUp();
        }
        deadline_ = now + minimumDuration;
    }
    return GestureStep::none;
}

GestureStep LongPressRule::moved(Fingers fingers, double) {
    if (begun_) {
        return GestureStep::change;
    }
    return strayed(fingers, allowableMovement) ? GestureStep::fail : GestureStep::none;
}

GestureStep LongPressRule::lifted(Fingers fingers, double) {
    if (!begun_) {
        return GestureStep::fail;
    }
    return fingers.size() < touches ? GestureStep::end : GestureStep::none;
}

GestureStep LongPressRule::timeUp() {
    begun_ = true;
    deadline_.reset();
    return GestureStep::begin;
}

void LongPressRule::reset() {
    begun_ = false;
    deadline_.reset();
}

} // namespace desktop
