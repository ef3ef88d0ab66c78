// The face of the room of utilities.
#pragma once

#include "library/common/face.hpp"

namespace wentra::utilities {

/// The list.
[[gnu::cold]] Face face();

} // namespace wentra::utilities
