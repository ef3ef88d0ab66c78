// What applications have to explain before the system lets them ask a person for it.
#pragma once

#include "bindings/foundation/string.hpp"

namespace wentra::toolbox {

/// Whether the host's Info dictionary has a text under that key, such as
/// "NSMicrophoneUsageDescription". Without one, the system ends the host when it asks.
[[nodiscard]] bool hasUsageDescription(ns::String key);

} // namespace wentra::toolbox
