// Swipes: fingers that flick in one direction.
#pragma once

#include "bindings/uikit/swipe_gesture_recognizer.hpp"

#include "desktop/uikit/gestures/gesture_rule.hpp"

namespace desktop {

class SwipeRule : public GestureRule {
public:
    /// How far a swipe goes at least, in points, and how long it takes at most, in seconds.
    static constexpr double shortest = 50;
    static constexpr double longest = 0.5;

    using Direction = ui::SwipeGestureRecognizerDirection;

    Direction directions = Direction::right;
    unsigned long touches = 1;

    GestureStep down(Fingers fingers, double now) override;
    GestureStep moved(Fingers fingers, double now) override;
    GestureStep lifted(Fingers fingers, double now) override;
    [[nodiscard]] std::optional<double> deadline() const override { return deadline_; }
    void reset() override;

private:
    CGPoint start_;
    std::optional<double> deadline_;
};

} // namespace desktop
