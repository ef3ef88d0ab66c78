// Where the library's views and screens are put.
#pragma once

#include "bindings/uikit/view_controller.hpp"

namespace wentra {

/// The first of the application's windows that is the key window, or nil.
[[nodiscard]] ui::Window keyWindow();

/// The first window of the first connected scene that is active in the foreground, or nil.
[[nodiscard]] ui::Window activeWindow();

/// What is presented last above the active window's root controller, or nil.
[[nodiscard]] ui::ViewController topViewController();

} // namespace wentra
