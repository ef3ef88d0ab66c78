// The edit menu: its items, and the tests of what its views can perform.
#pragma once

#include "bindings/objc/hook.hpp"

#include <span>

namespace wentra::editing {

/// Updates the menu before it shows, on the main operation queue.
[[gnu::cold]] void observeMenu();

/// What a text view and a text field can perform: the commands; and the system's actions, unless
/// the user hides those.
bool canPerformInText(objc::Next<bool(SEL, objc::Object)> next, objc::Object view, SEL action,
                      objc::Object sender);

/// The hooks on every responder, and the one on the menu.
[[gnu::cold]] std::span<const objc::Change> responderHooks();
[[gnu::cold]] std::span<const objc::Change> menuHooks();

} // namespace wentra::editing
