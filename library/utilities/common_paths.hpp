// Folders that the file manager is often sent to.
#pragma once

#include "library/utilities/tool_screens.hpp"

namespace wentra::utilities {

/// A sheet with a path in each action, which opens it in the file manager.
void showCommonPaths(ToolScreens& screens);

} // namespace wentra::utilities
