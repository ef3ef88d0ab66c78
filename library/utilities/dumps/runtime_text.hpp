// What runs in this process, as texts.
#pragma once

#include <string>

namespace wentra::utilities {

// All UTF-8.

/// Every class of the runtime: its name, and in lines of their own its properties, its instance
/// methods and its superclass.
[[nodiscard]] std::string classText();

/// The paths of the loaded images, an empty line between each two.
[[nodiscard]] std::string imageText();

/// The same, each with how many seconds ago something began.
[[nodiscard]] std::string uptimeText(double seconds);

} // namespace wentra::utilities
