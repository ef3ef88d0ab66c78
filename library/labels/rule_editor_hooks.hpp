// The containers whose long press opens the rule editor.
#pragma once

#include "bindings/objc/hook.hpp"

#include <span>

namespace wentra::labels {

/// `layoutSubviews` of the containers found in many applications.
[[gnu::cold]] std::span<const objc::Change> containerHooks();

/// `layoutSubviews` of the camera application's container.
[[gnu::cold]] std::span<const objc::Change> cameraHooks();

} // namespace wentra::labels
