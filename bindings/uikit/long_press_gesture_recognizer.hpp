// UILongPressGestureRecognizer.
#pragma once

#include "bindings/uikit/gesture_recognizer.hpp"

namespace ui {

struct LongPressGestureRecognizer
    : objc::Kind<LongPressGestureRecognizer, "UILongPressGestureRecognizer", GestureRecognizer> {
    using Kind::Kind;

    /// In seconds.
    void setMinimumPressDuration(double seconds) const {
        send<"setMinimumPressDuration:">(seconds);
    }
    void setNumberOfTouchesRequired(unsigned long touches) const {
        send<"setNumberOfTouchesRequired:">(touches);
    }
};

} // namespace ui
