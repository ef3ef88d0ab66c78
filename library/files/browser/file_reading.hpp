// What a tap finds out about a file.
#pragma once

#include "bindings/foundation/string.hpp"
#include "bindings/foundation/url.hpp"

#include <string>

namespace wentra::files {

/// Whether there is a folder, or a link that leads to one.
[[nodiscard]] bool isFolder(const std::string& path);

/// The file's URL; nil for a path that is no UTF-8, which no URL has.
[[nodiscard]] ns::Url urlOf(const std::string& path);

/// The text of a file in UTF-8, ASCII or Japanese EUC, whichever fits first. Nil, with a line in
/// the system log, where none does and where the file cannot be read.
[[nodiscard]] ns::String textOfFile(ns::Url url);

} // namespace wentra::files
