// Where the panel's screens come up.
#pragma once

#include "bindings/objc/hook.hpp"
#include "library/toolbox/floating_view_controller.hpp"

#include <span>

namespace wentra::toolbox {

/// Presents a screen of a tool over what the host shows, animated; from the controller itself where
/// the host has no controller.
void presentOverHost(FloatingViewController controller, ui::ViewController screen);

/// `getWindow`, `getCurrentViewController`, `keyWindow`, and how popovers adapt to a phone: not at
/// all.
std::span<const objc::Change> hostScreenCategory();

} // namespace wentra::toolbox
