// UIPinchGestureRecognizer.
#pragma once

#include "bindings/uikit/gesture_recognizer.hpp"

namespace ui {

struct PinchGestureRecognizer
    : objc::Kind<PinchGestureRecognizer, "UIPinchGestureRecognizer", GestureRecognizer> {
    using Kind::Kind;

    [[nodiscard]] double scale() const { return send<"scale", double>(); }
    void setScale(double scale) const { send<"setScale:">(scale); }
};

} // namespace ui
