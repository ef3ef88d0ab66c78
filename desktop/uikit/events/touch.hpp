// UITouch: one finger from when it comes down until it leaves.
#pragma once

#include "bindings/uikit/gesture_recognizer.hpp"

#include "desktop/class.hpp"
#include "desktop/uikit/gestures/gesture_rule.hpp"

#include <vector>

namespace desktop {

class Touch : public PlatformClass<Touch, ui::Touch> {
public:
    static constexpr auto methods() {
        return std::array{
            objc::method<"phase", &Touch::phase_>(),
            objc::method<"tapCount", &Touch::tapCount_>(),
            objc::method<"timestamp", &Touch::timestamp_>(),
            objc::method<"view", &Touch::view_>(),
            objc::method<"window", &Touch::window_>(),
            objc::method<"gestureRecognizers", &Touch::recognizerArray>(),
            objc::method<"locationInView:", &Touch::locationIn>(),
            objc::method<"previousLocationInView:", &Touch::previousLocationIn>(),
        };
    }

    /// The finger comes down on `view` (nil: on nothing) at a point of `window`.
    static objc::Strong<ui::Touch> began(ui::Window window, ui::View view, CGPoint point,
                                         unsigned long tapCount);
    void moveTo(CGPoint point);
    void setPhase(ui::TouchPhase phase) { phase_ = phase; }

    [[nodiscard]] const objc::Strong<ui::View>& view() const { return view_; }
    [[nodiscard]] const objc::Strong<ui::Window>& window() const { return window_; }
    [[nodiscard]] unsigned long tapCount() const { return tapCount_; }
    /// In points of the window.
    [[nodiscard]] const Finger& finger() const { return finger_; }
    [[nodiscard]] bool isDown() const {
        return phase_ != ui::TouchPhase::ended && phase_ != ui::TouchPhase::cancelled;
    }

    /// Who looks at the touch besides its view, in the order in which they are told of it.
    std::vector<objc::Strong<ui::GestureRecognizer>> recognizers;
    /// Whether the view is told of the touch, and whether it has been.
    bool reachesView = true;
    bool knownToView = false;

private:
    [[nodiscard]] ns::Array recognizerArray() const;
    [[nodiscard]] CGPoint locationIn(ui::View view) const;
    [[nodiscard]] CGPoint previousLocationIn(ui::View view) const;

    ui::TouchPhase phase_ = ui::TouchPhase::began;
    unsigned long tapCount_ = 1;
    double timestamp_ = 0;
    objc::Strong<ui::View> view_;
    objc::Strong<ui::Window> window_;
    Finger finger_;
    CGPoint previous_;
};

/// A point of the window in the coordinates of `view` (nil: the window itself).
[[nodiscard]] CGPoint fromWindow(ui::Window window, CGPoint point, ui::View view);

} // namespace desktop
