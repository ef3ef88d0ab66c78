// Turning the phone, and exchanging it.
#pragma once

#include "bindings/uikit/window_scene.hpp"
#include "desktop/uikit/application/device.hpp"

namespace desktop {

/// Turns the phone that way, and what it shows with it, where the front-most controller that fills
/// the screen supports the orientation; a phone with a notch never stands on its head. The result
/// is the orientation of what is shown from now on. Main thread.
ui::InterfaceOrientation rotate(ui::InterfaceOrientation to);

/// From now on the phone is of that model, held as before: what is shown gets its screen as when
/// the phone is turned. Main thread.
void exchangeDevice(const Device& device);

} // namespace desktop
