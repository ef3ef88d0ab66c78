// The system's share sheet.
#pragma once

#include "bindings/foundation/string.hpp"

namespace wentra {

/// Offers the text to the system's activities, over the top controller's context. Main thread.
void shareText(ns::String text);

} // namespace wentra
