// UISlider: a track with a thumb that a finger takes along.
#pragma once

#include "bindings/uikit/gesture_recognizer.hpp"
#include "bindings/uikit/slider.hpp"
#include "bindings/uikit/touch.hpp"

#include "desktop/class.hpp"

namespace desktop {

class Slider : public PlatformClass<Slider, ui::Slider> {
public:
    static constexpr auto methods() {
        using Self = Slider;
        return std::array{
            objc::method<"initWithFrame:", &Self::initWithFrame>(),
            objc::property<"value", &Self::value, &Self::setValue>(),
            objc::property<"minimumValue", &Self::minimum_, &Self::limitsChanged>(),
            objc::property<"maximumValue", &Self::maximum_, &Self::limitsChanged>(),
            objc::method<"touchesBegan:withEvent:", &Self::touchesBegan>(),
            objc::method<"touchesMoved:withEvent:", &Self::touchesMoved>(),
            objc::method<"gestureRecognizerShouldBegin:", &Self::shouldBegin>(),
            objc::method<"drawRect:", &Self::drawRect>(),
        };
    }

private:
    ui::Slider initWithFrame(CGRect frame);
    [[nodiscard]] float value() const { return value_; }
    void setValue(float value);
    void limitsChanged() { setValue(value_); }
    void touchesBegan(ns::SetOf<ui::Touch> touches, ui::Event event);
    void touchesMoved(ns::SetOf<ui::Touch> touches, ui::Event event);
    /// Views around the slider do not take the finger that moves it.
    [[nodiscard]] bool shouldBegin(ui::GestureRecognizer recognizer) const {
        return recognizer.view() == self();
    }
    void drawRect(CGRect dirty);
    [[nodiscard]] double thumbLeft() const;
    [[nodiscard]] double travel() const;

    float value_ = 0;
    float minimum_ = 0;
    float maximum_ = 1;
    bool taken_ = false;
    double grip_ = 0; ///< where on the thumb the finger is, from its left
};

} // namespace desktop
