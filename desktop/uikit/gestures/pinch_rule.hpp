// Pinches: two fingers that move apart or together.
#pragma once

#include "desktop/uikit/gestures/gesture_rule.hpp"

namespace desktop {

class PinchRule : public GestureRule {
public:
    /// How many times as far apart as at the start, or as when `setScale` was called.
    [[nodiscard]] double scale() const { return scale_; }
    /// From now on the fingers' present distance counts as that scale.
    void setScale(double scale);
    /// Change of the scale a second.
    [[nodiscard]] double velocity() const { return velocity_; }

    GestureStep down(Fingers fingers, double now) override;
    GestureStep moved(Fingers fingers, double now) override;
    GestureStep lifted(Fingers fingers, double now) override;
    void reset() override;

private:
    void measureFrom(Fingers fingers);

    bool begun_ = false;
    double scale_ = 1;
    double baseScale_ = 1;
    double baseSpan_ = 1;
    double span_ = 1;
    double velocity_ = 0;
    double latestMove_ = 0;
};

} // namespace desktop
