// The face of the room of crash reports' analysis.
#pragma once

#include "library/common/face.hpp"

namespace wentra::analysis {

/// The result screen and the movable dialog.
[[gnu::cold]] Face face();

} // namespace wentra::analysis
