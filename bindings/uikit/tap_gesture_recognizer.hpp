// UITapGestureRecognizer.
#pragma once

#include "bindings/uikit/gesture_recognizer.hpp"

namespace ui {

struct TapGestureRecognizer
    : objc::Kind<TapGestureRecognizer, "UITapGestureRecognizer", GestureRecognizer> {
    using Kind::Kind;

    [[nodiscard]] unsigned long numberOfTapsRequired() const {
        return send<"numberOfTapsRequired", unsigned long>();
    }
    void setNumberOfTapsRequired(unsigned long taps) const {
        send<"setNumberOfTapsRequired:">(taps);
    }
};

} // namespace ui
