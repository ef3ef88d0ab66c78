// The containers whose long press opens the rule editor, and the editor's saving.
#pragma once

#include "bindings/objc/hook.hpp"

#include <span>

namespace wentra::labels {

/// `saveRulesFromTextView:` on UIView: stores the rules in the given text view's text, and takes
/// the text view off the screen.
std::span<const objc::Change> ruleEditorCategory();

/// `layoutSubviews` of the containers found in many applications.
std::span<const objc::Change> containerHooks();

/// `layoutSubviews` of the camera application's container.
std::span<const objc::Change> cameraHooks();

} // namespace wentra::labels
