// UITouch.
#pragma once

#include "bindings/uikit/window.hpp"

namespace ui {

/// The platform's numbers.
enum class TouchPhase : long { began = 0, moved = 1, stationary = 2, ended = 3, cancelled = 4 };

struct Touch : objc::Kind<Touch, "UITouch"> {
    using Kind::Kind;

    [[nodiscard]] TouchPhase phase() const { return send<"phase", TouchPhase>(); }
    [[nodiscard]] unsigned long tapCount() const { return send<"tapCount", unsigned long>(); }
    /// The view that was touched at first; nil when there was none.
    [[nodiscard]] View view() const { return send<"view", View>(); }
    [[nodiscard]] Window window() const { return send<"window", Window>(); }
    /// In the coordinates of `view` (nil: the window).
    [[nodiscard]] CGPoint locationIn(View view) const {
        return send<"locationInView:", CGPoint>(view);
    }
    [[nodiscard]] CGPoint previousLocationIn(View view) const {
        return send<"previousLocationInView:", CGPoint>(view);
    }
};

} // namespace ui
