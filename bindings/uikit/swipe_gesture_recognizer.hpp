// UISwipeGestureRecognizer.
#pragma once

#include "bindings/uikit/gesture_recognizer.hpp"

namespace ui {

struct SwipeGestureRecognizer
    : objc::Kind<SwipeGestureRecognizer, "UISwipeGestureRecognizer", GestureRecognizer> {
    using Kind::Kind;

    /// 1 right, 2 left, 4 up, 8 down; several may be combined.
    void setDirection(unsigned long directions) const { send<"setDirection:">(directions); }
};

} // namespace ui
