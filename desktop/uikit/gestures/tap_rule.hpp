// Taps: fingers that come down and leave in time, without moving far, as often as is wanted.
#pragma once

#include "desktop/uikit/gestures/gesture_rule.hpp"

namespace desktop {

class TapRule : public GestureRule {
public:
    /// A finger that stays longer, in seconds, does not tap.
    static constexpr double longestTap = 0.75;
    /// The next tap of several begins within that time, in seconds.
    static constexpr double longestPause = 0.35;
    /// Taps and their fingers stay within that distance, in points.
    static constexpr double allowedDistance = 45;

    unsigned long taps = 1;
    unsigned long touches = 1;

    GestureStep down(Fingers fingers, double now) override;
    GestureStep moved(Fingers fingers, double now) override;
    GestureStep lifted(Fingers fingers, double now) override;
    [[nodiscard]] std::optional<double> deadline() const override { return deadline_; }
    void reset() override;

private:
    enum class Phase { up, comingDown, allDown, lifting };
    Phase phase_ = Phase::up;
    unsigned long made_ = 0;
    CGPoint place_;
    std::optional<double> deadline_;
};

} // namespace desktop
