// The panel's body: what the controller's view is made of.
#pragma once

#include "library/toolbox/floating_view_controller.hpp"

namespace wentra::toolbox {

/// Gives the controller a view with the word grid, the counts and the buttons, and watches the
/// host's screen for presses.
void buildBody(FloatingViewController controller);

/// Puts the buttons where the preferences say now.
void layOutBody(FloatingViewController controller);

} // namespace wentra::toolbox
