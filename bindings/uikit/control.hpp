// UIControl.
#pragma once

#include "bindings/uikit/view.hpp"

namespace ui {

struct Control : objc::Kind<Control, "UIControl", View> {
    using Kind::Kind;

    [[nodiscard]] bool isEnabled() const { return send<"isEnabled", bool>(); }
    void setEnabled(bool enabled) const { send<"setEnabled:">(enabled); }
};

} // namespace ui
