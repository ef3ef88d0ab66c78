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
    [[nodiscard]] unsigned long numberOfTouchesRequired() const {
        return send<"numberOfTouchesRequired", unsigned long>();
    }
    void setNumberOfTouchesRequired(unsigned long touches) const {
        send<"setNumberOfTouchesRequired:">(touches);
    }
};

} // namespace ui
