// Turning the phone.
#pragma once

#include "bindings/uikit/window_scene.hpp"

namespace desktop {

/// Turns the phone that way, and what it shows with it, where the front-most controller that fills
/// the screen supports the orientation; a phone with a notch never stands on its head. The result
/// is the orientation of what is shown from now on. Main thread.
ui::InterfaceOrientation rotate(ui::InterfaceOrientation to);

} // namespace desktop
