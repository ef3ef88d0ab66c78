// The alert in which a translation is edited before it replaces the original.
#pragma once

#include "bindings/foundation/string.hpp"

namespace wentra::toolbox {

/// Presents the alert above everything. What the user confirms becomes the original's replacement.
/// Main thread.
void presentEditAlert(ns::String original, ns::String translated);

} // namespace wentra::toolbox
