// The labels that count text and symbols.
#pragma once

#include "bindings/objc/hook.hpp"
#include "library/toolbox/floating_view_controller.hpp"

#include <span>

namespace wentra::toolbox {

/// Counts the whole text and what is picked of it, and tells it in the four labels, when the user
/// wants to know; otherwise the labels stay as they are.
void updateStatistics(FloatingViewController controller);

/// `updateStatistics`.
std::span<const objc::Change> statisticsCategory();

} // namespace wentra::toolbox
