// UIPanGestureRecognizer.
#pragma once

#include "bindings/uikit/gesture_recognizer.hpp"

namespace ui {

struct PanGestureRecognizer
    : objc::Kind<PanGestureRecognizer, "UIPanGestureRecognizer", GestureRecognizer> {
    using Kind::Kind;

    [[nodiscard]] CGPoint translationIn(View view) const {
        return send<"translationInView:", CGPoint>(view);
    }
    void setTranslation(CGPoint translation, View view) const {
        send<"setTranslation:inView:">(translation, view);
    }
    /// In points a second.
    [[nodiscard]] CGPoint velocityIn(View view) const {
        return send<"velocityInView:", CGPoint>(view);
    }
};

} // namespace ui
