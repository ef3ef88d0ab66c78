// The face of the file manager's room: its browser and its viewers.
#pragma once

#include "library/common/face.hpp"

namespace wentra::files {

/// The browser and the viewers.
[[gnu::cold]] Face face();

} // namespace wentra::files
