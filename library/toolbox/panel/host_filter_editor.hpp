// The editor of the list of blocked hosts.
#pragma once

#include "bindings/objc/hook.hpp"

#include <span>

namespace wentra::toolbox {

/// `longPressedStopRecordButton:` opens the editor; `saveContent:` and `close1ButtonPressed:` are
/// its buttons.
std::span<const objc::Change> hostFilterEditorCategory();

} // namespace wentra::toolbox
