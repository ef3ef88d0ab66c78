// UISwipeGestureRecognizer.
#pragma once

#include "bindings/uikit/swipe_gesture_recognizer.hpp"

#include "desktop/uikit/gestures/gesture_recognizer.hpp"
#include "desktop/uikit/gestures/swipe_rule.hpp"

namespace desktop {

class SwipeGestureRecognizer
    : public PlatformClass<SwipeGestureRecognizer, ui::SwipeGestureRecognizer> {
public:
    static constexpr auto methods() {
        using Self = SwipeGestureRecognizer;
        return std::array{
            objc::property<"direction", &Self::direction, &Self::setDirection>(),
            objc::property<"numberOfTouchesRequired", &Self::touches, &Self::setTouches>(),
        };
    }

    SwipeGestureRecognizer() { GestureRecognizer::of(self()).follow(rule_); }

private:
    [[nodiscard]] SwipeRule::Direction direction() const { return rule_.directions; }
    void setDirection(SwipeRule::Direction directions) { rule_.directions = directions; }
    [[nodiscard]] unsigned long touches() const { return rule_.touches; }
    void setTouches(unsigned long touches) { rule_.touches = touches; }

    SwipeRule rule_;
};

} // namespace desktop
