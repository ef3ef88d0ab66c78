// UISwitch: on or off.
#pragma once

#include "bindings/uikit/control.hpp"

namespace ui {

struct Switch : objc::Kind<Switch, "UISwitch", Control> {
    using Kind::Kind;

    /// It has one size, whatever the frame says.
    static Switch withFrame(CGRect frame) { return make<"initWithFrame:">(frame); }
    [[nodiscard]] bool isOn() const { return send<"isOn", bool>(); }
    /// Sends no action.
    void setOn(bool on) const { send<"setOn:">(on); }
};

} // namespace ui
