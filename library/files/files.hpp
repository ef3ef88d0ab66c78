// The face of the room of files: their panes and their viewers.
#pragma once

#include "library/common/face.hpp"

namespace wentra::files {

/// The viewers.
Face face();

} // namespace wentra::files
