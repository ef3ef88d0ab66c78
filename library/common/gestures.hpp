// Gestures of a view, with who answers them: one line each.
#pragma once

#include "bindings/uikit/pan_gesture_recognizer.hpp"
#include "bindings/uikit/pinch_gesture_recognizer.hpp"
#include "bindings/uikit/swipe_gesture_recognizer.hpp"
#include "bindings/uikit/view.hpp"

namespace wentra {

// Each adds a recognizer to the view that sends `action` to `owner`, which is not retained.

/// `taps`: how many make the gesture.
void addTap(ui::View view, objc::Object owner, SEL action, unsigned long taps = 1);

/// A long press of at least that many seconds; the platform's own duration when none are given.
void addPress(ui::View view, objc::Object owner, SEL action, double seconds = 0,
              unsigned long fingers = 1);

void addSwipe(ui::View view, objc::Object owner, SEL action,
              ui::SwipeGestureRecognizerDirection direction);

ui::PanGestureRecognizer addPan(ui::View view, objc::Object owner, SEL action);

ui::PinchGestureRecognizer addPinch(ui::View view, objc::Object owner, SEL action);

} // namespace wentra
