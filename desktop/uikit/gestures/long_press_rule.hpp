// Long presses: fingers that come down and stay where they are.
#pragma once

#include "desktop/uikit/gestures/gesture_rule.hpp"

namespace desktop {

class LongPressRule : public GestureRule {
public:
    /// In seconds.
    double minimumDuration = 0.5;
    unsigned long touches = 1;
    /// In points; only before the press has begun.
    double allowableMovement = 10;

    GestureStep down(Fingers fingers, double now) override;
    GestureStep moved(Fingers fingers, double now) override;
    GestureStep lifted(Fingers fingers, double now) override;
    GestureStep timeUp() override;
    [[nodiscard]] std::optional<double> deadline() const override { return deadline_; }
    void reset() override;

private:
    bool begun_ = false;
    std::optional<double> deadline_;
};

} // namespace desktop
