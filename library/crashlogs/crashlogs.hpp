// The face of the room of crash reports.
#pragma once

#include "library/common/face.hpp"

namespace wentra::crashlogs {

/// The list.
[[gnu::cold]] Face face();

} // namespace wentra::crashlogs
