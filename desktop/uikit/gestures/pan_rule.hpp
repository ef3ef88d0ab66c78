// Pans: fingers that drag.
#pragma once

#include "desktop/uikit/gestures/gesture_rule.hpp"

#include <limits>

namespace desktop {

class PanRule : public GestureRule {
public:
    unsigned long minimumTouches = 1;
    unsigned long maximumTouches = std::numeric_limits<unsigned long>::max();

    /// How far the middle of the fingers has gone since it was 0, in points of the window.
    CGPoint translation;
    /// In points a second.
    [[nodiscard]] CGPoint velocity() const { return velocity_; }

    GestureStep down(Fingers fingers, double now) override;
    GestureStep moved(Fingers fingers, double now) override;
    GestureStep lifted(Fingers fingers, double now) override;
    void reset() override;

private:
    void follow(CGPoint middle, double now);

    bool begun_ = false;
    CGPoint middle_;
    CGPoint velocity_;
    double latestMove_ = 0;
};

} // namespace desktop
