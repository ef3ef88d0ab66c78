// Translating what was copied, picked or given, and showing what came of it.
#pragma once

#include "bindings/objc/hook.hpp"

#include <span>

namespace wentra::toolbox {

/// The toolbox controller's translation methods: `wzjhButtonClicked:`, its variant with a text,
/// `translateText:`, the helpers they are built from, and
/// `showAlertWithTitle:message:originalText:translatedText:`. They work on a controller that was
/// never shown.
std::span<const objc::Change> translationCategory();

} // namespace wentra::toolbox
