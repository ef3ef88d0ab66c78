// A small clear view that is dragged about, for what has to stay over the host's screen.
#pragma once

#include "bindings/objc/hook.hpp"

#include <span>

namespace wentra::toolbox {

/// `createContainerView` makes one, `dragContainer:` is its pan's action.
std::span<const objc::Change> containerCategory();

} // namespace wentra::toolbox
