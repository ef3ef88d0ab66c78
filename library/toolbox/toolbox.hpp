// The face of the toolbox.
#pragma once

#include "library/common/face.hpp"

namespace wentra::toolbox {

/// The view model, the panel's controller with its tools, and the dialog of both texts.
[[gnu::cold]] Face face();

} // namespace wentra::toolbox
