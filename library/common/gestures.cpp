// Makes recognizers and adds them.
#include "library/common/gestures.hpp"

#include "bindings/uikit/long_press_gesture_recognizer.hpp"
#include "bindings/uikit/tap_gesture_recognizer.hpp"

namespace wentra {
namespace {

template <class Recognizer>
Recognizer add(ui::View view, objc::Object owner, SEL action) {
    const auto recognizer = ui::GestureRecognizer::with<Recognizer>(owner, action);
    view.addGestureRecognizer(recognizer);
    return recognizer;
}

} // namespace

void addTap(ui::View view, objc::Object owner, SEL action, unsigned long taps) {
    add<ui::TapGestureRecognizer>(view, owner, action).setNumberOfTapsRequired(taps);
}

void addPress(ui::View view, objc::Object owner, SEL action, double seconds,
              unsigned long fingers) {
    const auto press = add<ui::LongPressGestureRecognizer>(view, owner, action);
    if (seconds > 0) {
        press.setMinimumPressDuration(seconds);
    }
    press.setNumberOfTouchesRequired(fingers);
}

void addSwipe(ui::View view, objc::Object owner, SEL action,
              ui::SwipeGestureRecognizerDirection direction) {
    add<ui::SwipeGestureRecognizer>(view, owner, action).setDirection(direction);
}

ui::PanGestureRecognizer addPan(ui::View view, objc::Object owner, SEL action) {
    return add<ui::PanGestureRecognizer>(view, owner, action);
}

ui::PinchGestureRecognizer addPinch(ui::View view, objc::Object owner, SEL action) {
    return add<ui::PinchGestureRecognizer>(view, owner, action);
}

} // namespace wentra
