// Touches: where they are, and whom they concern.
#include "desktop/uikit/events/touch.hpp"

#include "desktop/runtime/clock.hpp"

namespace desktop {

objc::Strong<ui::Touch> Touch::began(ui::Window window, ui::View view, CGPoint point,
                                     unsigned long tapCount) {
    const objc::Strong<ui::Touch> touch = ui::Touch::make();
    Touch& peer = of(touch);
    peer.window_ = window;
    peer.view_ = view;
    peer.finger_ = {point, point};
    peer.previous_ = point;
    peer.tapCount_ = tapCount;
    peer.timestamp_ = Clock::shared().now();
    return touch;
}

void Touch::moveTo(CGPoint point) {
    previous_ = finger_.point;
    finger_.point = point;
    timestamp_ = Clock::shared().now();
}

ns::Array Touch::recognizerArray() const {
    const auto array = ns::MutableArray::make();
    for (const auto& recognizer : recognizers) {
        array.add(recognizer);
    }
    return array;
}

CGPoint Touch::locationIn(ui::View view) const { return fromWindow(window_, finger_.point, view); }

CGPoint Touch::previousLocationIn(ui::View view) const {
    return fromWindow(window_, previous_, view);
}

CGPoint fromWindow(ui::Window window, CGPoint point, ui::View view) {
    return window && view ? window.convertPoint(point, view) : point;
}

} // namespace desktop
