// What the edit menu's commands do.
#pragma once

#include "bindings/objc/hook.hpp"

#include <span>

namespace wentra::editing {

/// UIResponder(CustomMenuItems): the commands' selectors on every responder, each doing nothing.
[[gnu::cold]] std::span<const objc::Change> menuItemCategory();

/// The `synth` property of text views and text fields.
[[gnu::cold]] std::span<const objc::Change> speechCategories();

/// The commands of text views and of text fields, and the synthesizer that each view gets. What a
/// text field has no hook for does nothing there.
[[gnu::cold]] std::span<const objc::Change> textViewHooks();
[[gnu::cold]] std::span<const objc::Change> textFieldHooks();

} // namespace wentra::editing
