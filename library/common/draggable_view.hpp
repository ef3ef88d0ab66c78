// UIView(makeDraggableAndZoomable): what every floating panel can do.
#pragma once

#include "bindings/objc/hook.hpp"
#include "bindings/uikit/button.hpp"
#include "bindings/uikit/pan_gesture_recognizer.hpp"
#include "bindings/uikit/pinch_gesture_recognizer.hpp"

#include <span>

namespace wentra {

/// A button whose touch area is a fixed square, whatever its size: views are dropped on it.
struct TrashButton : objc::Kind<TrashButton, "TrashButton", ui::Button> {
    using Kind::Kind;

    static TrashButton withType(ui::ButtonType type) {
        return sendClass<"buttonWithType:", TrashButton>(type);
    }
};

/// The tag by which a dragged view finds the trash button among its neighbours.
inline constexpr long trashTag = 99;

/// Declares `TrashButton`.
[[gnu::cold]] void registerTrashButton();

/// `makeDraggableAndZoomable`, its variant with a trash button, and the gestures' actions
/// `handlePan:`, `handlePinch:` and `handleDoubleTap:`, on UIView.
[[gnu::cold]] std::span<const objc::Change> draggableCategory();

/// Lets the view be dragged, pinched and zoomed by double taps.
void makeDraggableAndZoomable(ui::View view);

/// Also lets the view be put away by dropping it on the button, which lies beside it. In the
/// next turn of the main loop the view's tag becomes the button's address, as a number.
void makeDraggableAndZoomable(ui::View view, TrashButton trash);

/// Moves a view's centre by how far its pan has come, in the coordinates of `space`, and lets the
/// pan count from there.
void moveAlong(ui::View view, ui::PanGestureRecognizer pan, ui::View space);

/// Scales a view by how far its fingers have moved apart, without bounds, and lets the pinch count
/// from there.
void scaleAlong(ui::View view, ui::PinchGestureRecognizer pinch);

} // namespace wentra
