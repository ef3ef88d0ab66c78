// Lines and numbers that tell where a finger presses the host's screen.
#pragma once

#include "bindings/objc/hook.hpp"
#include "library/toolbox/floating_view_controller.hpp"

#include <span>
#include <string>

namespace wentra::toolbox {

/// "X:1.00, Y:2.50"; a point that is not finite is told as printf tells it.
[[nodiscard]] std::string coordinateText(CGPoint point);

/// Puts the lines and the label, unseen, into the view of the host's top screen.
void addCrosshair(FloatingViewController controller);

/// Follows long presses on the host's top screen.
void watchPresses(FloatingViewController controller);

/// `longPressGestureAction:`.
std::span<const objc::Change> crosshairCategory();

} // namespace wentra::toolbox
