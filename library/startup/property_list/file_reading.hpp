// Reads a whole file without ever waiting for one.
#pragma once

#include "library/startup/property_list/padded_bytes.hpp"

#include <cstddef>
#include <optional>
#include <string>

namespace wentra::startup {

/// The bytes of the regular file at `path` (UTF-8). None when it cannot be read, is larger than
/// `limit` bytes, shrinks meanwhile or is no regular file: a pipe or a folder.
std::optional<PaddedBytes> readRegularFile(const std::string& path, std::size_t limit);

} // namespace wentra::startup
