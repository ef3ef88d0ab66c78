// Enlarging and shrinking the panel.
#pragma once

#include "bindings/objc/hook.hpp"

#include <span>

namespace wentra::toolbox {

/// `explodeButtonClicked:` enlarges the panel, or gives it its first sizes back;
/// `qxhandleLongPress:` shrinks it; `updateViewSize` takes the grid's stored size.
std::span<const objc::Change> viewSizeCategory();

} // namespace wentra::toolbox
