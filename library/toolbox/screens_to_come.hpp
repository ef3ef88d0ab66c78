// The panel's buttons whose tools are not there yet.
#pragma once

#include "bindings/objc/hook.hpp"

#include <span>

namespace wentra::toolbox {

/// The selectors that buttons of the panel send and that do nothing so far. Installed after every
/// category, so that a tool's own method comes first; whoever makes a tool takes its row out.
std::span<const objc::Change> screensToCome();

} // namespace wentra::toolbox
