// UILongPressGestureRecognizer.
#pragma once

#include "bindings/uikit/long_press_gesture_recognizer.hpp"

#include "desktop/uikit/gestures/gesture_recognizer.hpp"
#include "desktop/uikit/gestures/long_press_rule.hpp"

namespace desktop {

class LongPressGestureRecognizer
    : public PlatformClass<LongPressGestureRecognizer, ui::LongPressGestureRecognizer> {
public:
    static constexpr auto methods() {
        using Self = LongPressGestureRecognizer;
        return std::array{
            objc::property<"minimumPressDuration", &Self::duration, &Self::setDuration>(),
            objc::property<"numberOfTouchesRequired", &Self::touches, &Self::setTouches>(),
            objc::property<"allowableMovement", &Self::movement, &Self::setMovement>(),
        };
    }

    LongPressGestureRecognizer() { GestureRecognizer::of(self()).follow(rule_); }

private:
    [[nodiscard]] double duration() const { return rule_.minimumDuration; }
    void setDuration(double seconds) { rule_.minimumDuration = seconds; }
    [[nodiscard]] unsigned long touches() const { return rule_.touches; }
    void setTouches(unsigned long touches) { rule_.touches = touches; }
    [[nodiscard]] double movement() const { return rule_.allowableMovement; }
    void setMovement(double points) { rule_.allowableMovement = points; }

    LongPressRule rule_;
};

} // namespace desktop
