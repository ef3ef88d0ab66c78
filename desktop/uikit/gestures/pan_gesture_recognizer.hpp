// UIPanGestureRecognizer.
#pragma once

#include "bindings/uikit/pan_gesture_recognizer.hpp"

#include "desktop/uikit/gestures/gesture_recognizer.hpp"
#include "desktop/uikit/gestures/pan_rule.hpp"

namespace desktop {

class PanGestureRecognizer : public PlatformClass<PanGestureRecognizer, ui::PanGestureRecognizer> {
public:
    static constexpr auto methods() {
        using Self = PanGestureRecognizer;
        return std::array{
            objc::property<"minimumNumberOfTouches", &Self::minimum, &Self::setMinimum>(),
            objc::property<"maximumNumberOfTouches", &Self::maximum, &Self::setMaximum>(),
            objc::method<"translationInView:", &Self::translationIn>(),
            objc::method<"setTranslation:inView:", &Self::setTranslation>(),
            objc::method<"velocityInView:", &Self::velocityIn>(),
        };
    }

    PanGestureRecognizer() { base().follow(rule_); }

private:
    [[nodiscard]] GestureRecognizer& base() const { return GestureRecognizer::of(self()); }
    [[nodiscard]] unsigned long minimum() const { return rule_.minimumTouches; }
    void setMinimum(unsigned long touches) { rule_.minimumTouches = touches; }
    [[nodiscard]] unsigned long maximum() const { return rule_.maximumTouches; }
    void setMaximum(unsigned long touches) { rule_.maximumTouches = touches; }
    [[nodiscard]] CGPoint translationIn(ui::View view) const {
        return base().vectorIn(view, rule_.translation);
    }
    void setTranslation(CGPoint translation, ui::View view) {
        rule_.translation = base().vectorFrom(view, translation);
    }
    [[nodiscard]] CGPoint velocityIn(ui::View view) const {
        return base().vectorIn(view, rule_.velocity());
    }

    PanRule rule_;
};

} // namespace desktop
