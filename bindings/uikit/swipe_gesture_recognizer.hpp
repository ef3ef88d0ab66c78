// UISwipeGestureRecognizer.
#pragma once

#include "bindings/objc/options.hpp"
#include "bindings/uikit/gesture_recognizer.hpp"

namespace ui {

using objc::operator|, objc::operator&, objc::operator~;

/// Several may be combined; the platform's bits.
enum class SwipeGestureRecognizerDirection : unsigned long {
    right = 1U << 0U,
    left = 1U << 1U,
    up = 1U << 2U,
    down = 1U << 3U,
};
constexpr bool areOptions(SwipeGestureRecognizerDirection) { return true; }

struct SwipeGestureRecognizer
    : objc::Kind<SwipeGestureRecognizer, "UISwipeGestureRecognizer", GestureRecognizer> {
    using Kind::Kind;

    void setDirection(SwipeGestureRecognizerDirection directions) const {
        send<"setDirection:">(directions);
    }
};

} // namespace ui
