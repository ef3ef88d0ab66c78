// UIGestureRecognizer.
#pragma once

#include "bindings/uikit/touch.hpp"

namespace ui {

/// The platform's numbers; `ended` is also "recognized", for gestures without duration.
enum class GestureState : long {
    possible = 0,
    began = 1,
    changed = 2,
    ended = 3,
    cancelled = 4,
    failed = 5,
};

struct GestureRecognizer : objc::Kind<GestureRecognizer, "UIGestureRecognizer"> {
    using Kind::Kind;

    /// A recognizer of that class that sends `action` to `target`.
    template <class Recognizer>
    static Recognizer with(objc::Object target, SEL action) {
        return Recognizer::template make<"initWithTarget:action:">(target, action);
    }

    [[nodiscard]] GestureState state() const { return send<"state", GestureState>(); }
    [[nodiscard]] View view() const { return send<"view", View>(); }
    void setEnabled(bool enabled) const { send<"setEnabled:">(enabled); }
    void setCancelsTouchesInView(bool cancels) const { send<"setCancelsTouchesInView:">(cancels); }
    /// Not retained.
    void setDelegate(objc::Object delegate) const { send<"setDelegate:">(delegate); }
    void requireToFail(GestureRecognizer other) const {
        send<"requireGestureRecognizerToFail:">(other);
    }
    [[nodiscard]] unsigned long numberOfTouches() const {
        return send<"numberOfTouches", unsigned long>();
    }
    /// In the coordinates of `view` (nil: the window).
    [[nodiscard]] CGPoint locationIn(View view) const {
        return send<"locationInView:", CGPoint>(view);
    }
};

inline void View::addGestureRecognizer(GestureRecognizer recognizer) const {
    send<"addGestureRecognizer:">(recognizer);
}
inline void View::removeGestureRecognizer(GestureRecognizer recognizer) const {
    send<"removeGestureRecognizer:">(recognizer);
}

} // namespace ui
