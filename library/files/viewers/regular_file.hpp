// What can be read to its end: files, not pipes or devices.
#pragma once

#include "bindings/foundation/string.hpp"

#include <optional>

namespace wentra::files {

/// The size in bytes of the regular file that the path leads to, over links too; nothing for
/// folders, pipes and devices, and where there is none.
[[nodiscard]] std::optional<long long> regularFileSize(ns::String path);

} // namespace wentra::files
