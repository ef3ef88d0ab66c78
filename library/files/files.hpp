// The face of the file manager's room.
#pragma once

#include "library/common/face.hpp"

namespace wentra::files {

/// The browser.
Face face();

} // namespace wentra::files
