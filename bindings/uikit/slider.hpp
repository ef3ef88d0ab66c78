// UISlider: a value between two limits.
#pragma once

#include "bindings/uikit/control.hpp"

namespace ui {

struct Slider : objc::Kind<Slider, "UISlider", Control> {
    using Kind::Kind;

    static Slider withFrame(CGRect frame) { return make<"initWithFrame:">(frame); }
    [[nodiscard]] float value() const { return send<"value", float>(); }
    /// The nearer limit where it lies beyond; sends no action.
    void setValue(float value) const { send<"setValue:">(value); }
    void setMinimumValue(float value) const { send<"setMinimumValue:">(value); }
    void setMaximumValue(float value) const { send<"setMaximumValue:">(value); }
};

} // namespace ui
