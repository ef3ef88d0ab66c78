// The face of the room of labels: what it declares, and its tables of hooks in their files.
#pragma once

#include "library/common/face.hpp"
#include "library/labels/label_text_hooks.hpp"
#include "library/labels/long_press_copy.hpp"
#include "library/labels/rule_editor_hooks.hpp"

namespace wentra::labels {

/// `YYLabel` and the classes of the rule editor; colours from strings, copying by a long press, and
/// the rule editor on every view.
[[gnu::cold]] Face face();

} // namespace wentra::labels
