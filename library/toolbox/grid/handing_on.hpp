// Where picked words go: the pasteboard and the share sheet.
#pragma once

#include "bindings/objc/hook.hpp"

#include <span>

namespace wentra::toolbox {

/// `pasteButtonClicked:` and `shareButtonClicked:`, the actions of the two buttons.
std::span<const objc::Change> handingOnCategory();

} // namespace wentra::toolbox
