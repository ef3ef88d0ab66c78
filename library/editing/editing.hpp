// The face of the room of text editing: what it declares, and its tables of hooks in their files.
#pragma once

#include "library/common/face.hpp"
#include "library/editing/edit_menu.hpp"
#include "library/editing/text_actions.hpp"
#include "library/editing/text_gesture_hooks.hpp"

namespace wentra::editing {

/// The edit menu's commands on every responder, and the voices of text views and fields.
[[gnu::cold]] Face face();

} // namespace wentra::editing
