// Room for the keyboard below the text that is edited.
#pragma once

#include "bindings/objc/hook.hpp"
#include "library/toolbox/floating_view_controller.hpp"

#include <span>

namespace wentra::toolbox {

/// Listens to the keyboard's coming and going, or no longer does.
void watchKeyboard(FloatingViewController controller);
void leaveKeyboard(FloatingViewController controller);

/// `keyboardWillShow:` and `keyboardWillHide:`.
std::span<const objc::Change> keyboardCategory();

} // namespace wentra::toolbox
