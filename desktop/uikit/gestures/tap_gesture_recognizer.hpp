// UITapGestureRecognizer.
#pragma once

#include "bindings/uikit/tap_gesture_recognizer.hpp"

#include "desktop/uikit/gestures/gesture_recognizer.hpp"
#include "desktop/uikit/gestures/tap_rule.hpp"

namespace desktop {

class TapGestureRecognizer : public PlatformClass<TapGestureRecognizer, ui::TapGestureRecognizer> {
public:
    static constexpr auto methods() {
        using Self = TapGestureRecognizer;
        return std::array{
            objc::property<"numberOfTapsRequired", &Self::taps, &Self::setTaps>(),
            objc::property<"numberOfTouchesRequired", &Self::touches, &Self::setTouches>(),
            objc::method<"canPreventGestureRecognizer:", &Self::canPrevent>(),
        };
    }

    TapGestureRecognizer() { GestureRecognizer::of(self()).follow(rule_); }

    /// Whether one tap with one finger is all that it takes.
    [[nodiscard]] bool isSimple() const { return rule_.taps == 1 && rule_.touches == 1; }

private:
    [[nodiscard]] unsigned long taps() const { return rule_.taps; }
    void setTaps(unsigned long taps) { rule_.taps = taps; }
    [[nodiscard]] unsigned long touches() const { return rule_.touches; }
    void setTouches(unsigned long touches) { rule_.touches = touches; }
    /// The first tap of several must not end the wait for the others.
    [[nodiscard]] bool canPrevent(ui::GestureRecognizer other) const {
        const auto tap = other.as<ui::TapGestureRecognizer>();
        return !tap || tap.numberOfTapsRequired() <= rule_.taps;
    }

    TapRule rule_;
};

} // namespace desktop
