// The edit menu's extra commands: the methods that carry them, and the menu that offers them.
#pragma once

#include "bindings/objc/hook.hpp"

#include <span>

namespace wentra::editing {

/// UIResponder(CustomMenuItems): the commands' selectors on every responder, each doing nothing.
std::span<const objc::Change> menuItemCategory();

/// The `synth` property of text views and text fields.
std::span<const objc::Change> speechCategories();

/// Watches for the edit menu about to show, on the main operation queue.
void observeMenu();

/// The hooks on responders, text views, text fields and the menu.
std::span<const objc::Change> editMenuHooks();

} // namespace wentra::editing
