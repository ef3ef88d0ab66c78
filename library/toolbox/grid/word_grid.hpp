// The grid of tiles that shows a text's tokens.
#pragma once

#include "bindings/objc/hook.hpp"
#include "library/toolbox/floating_view_controller.hpp"

#include <span>

namespace wentra::toolbox {

/// Puts the grid into the controller's view.
void addWordGrid(FloatingViewController controller, CGRect frame, double shade);

/// What the grid asks its data source and the delegate of its layout, and `updateWordsArray:`.
std::span<const objc::Change> wordGridCategory();

} // namespace wentra::toolbox
