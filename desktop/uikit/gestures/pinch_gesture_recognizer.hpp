// UIPinchGestureRecognizer.
#pragma once

#include "bindings/uikit/pinch_gesture_recognizer.hpp"

#include "desktop/uikit/gestures/gesture_recognizer.hpp"
#include "desktop/uikit/gestures/pinch_rule.hpp"

namespace desktop {

class PinchGestureRecognizer
    : public PlatformClass<PinchGestureRecognizer, ui::PinchGestureRecognizer> {
public:
    static constexpr auto methods() {
        using Self = PinchGestureRecognizer;
        return std::array{
            objc::property<"scale", &Self::scale, &Self::setScale>(),
            objc::method<"velocity", &Self::velocity>(),
        };
    }

    PinchGestureRecognizer() { GestureRecognizer::of(self()).follow(rule_); }

private:
    [[nodiscard]] double scale() const { return rule_.scale(); }
    void setScale(double scale) { rule_.setScale(scale); }
    [[nodiscard]] double velocity() const { return rule_.velocity(); }

    PinchRule rule_;
};

} // namespace desktop
