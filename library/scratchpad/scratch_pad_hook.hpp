// The scratch pad's way into the Settings application.
#pragma once

#include "bindings/objc/hook.hpp"

#include <span>

namespace wentra::scratchpad {

/// `viewDidLoad` of Settings' root controller.
[[gnu::cold]] std::span<const objc::Change> scratchPadHooks();

} // namespace wentra::scratchpad
