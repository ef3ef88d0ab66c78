// Gestures on the labels and text views of some applications.
#pragma once

#include "bindings/objc/hook.hpp"

#include <span>

namespace wentra::editing {

/// Creation hooks and the added methods that answer the gestures.
[[gnu::cold]] std::span<const objc::Change> textGestureHooks();

} // namespace wentra::editing
