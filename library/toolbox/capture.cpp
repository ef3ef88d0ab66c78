// Making the recorder's container and moving it.
#include "library/toolbox/capture.hpp"

#include "bindings/replaykit/screen_recorder.hpp"
#include "library/common/draggable_view.hpp"
#include "library/common/gestures.hpp"

namespace wentra::toolbox {

void Capture::begin() {
    screenshots_ = ns::MutableArray::make();
    screenRecorder_ = rp::ScreenRecorder::sharedRecorder();
}

ui::View Capture::makeContainer() const {
    constexpr CGRect frame{{220, 50}, {140, 60}};
    const auto container = ui::View::withFrame(frame);
    container.setBackgroundColor(ui::Color::clear());
    addPan(container, self(), objc::selector<"dragContainer:">());
    return container;
}

void Capture::dragContainer(ui::PanGestureRecognizer pan) {
    const ui::GestureState state = pan.state();
    if (state == ui::GestureState::changed || state == ui::GestureState::ended) {
        moveAlong(pan.view(), pan, pan.view().superview());
    }
}

} // namespace wentra::toolbox
