// A free name for a copy beside what has its name.
#pragma once

#include <string>

namespace wentra::files {

/// The destination where nothing is there, else the first free one of "base-1.ext", "base-2.ext", …
/// in its folder, by the source's name. A name without extension gets the full stop nevertheless.
[[nodiscard]] std::string numberedPath(const std::string& source, const std::string& destination);

} // namespace wentra::files
