// The lists that long presses of the panel's buttons open.
#pragma once

#include "bindings/objc/hook.hpp"

#include <span>

namespace wentra::toolbox {

/// The long presses' selectors on the controller.
std::span<const objc::Change> listOpeners();

} // namespace wentra::toolbox
