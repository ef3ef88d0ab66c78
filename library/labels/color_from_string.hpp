// UIColor(StringToColor): a colour from a name or hexadecimal digits.
#pragma once

#include "bindings/objc/hook.hpp"
#include "bindings/uikit/color.hpp"

#include <span>

namespace wentra::labels {

/// The colour that `text` names: "red" or "ff0000" or "#ff0000", each with an optional alpha as in
/// "red-0.5". White for anything else, nil included.
ui::Color colorFromString(ns::String text);

/// `colorFromString:` as a class method of UIColor.
[[gnu::cold]] std::span<const objc::Change> colourCategory();

} // namespace wentra::labels
