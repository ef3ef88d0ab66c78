// When files were made.
#pragma once

#include "bindings/foundation/date.hpp"

#include <optional>
#include <string>

namespace desktop::foundation {

/// Seconds since 1970 at which the entry was made, itself where it is a link: what was set, else
/// what the file system knows. The phone's own sets this date back with that of the last change, so
/// nothing was made after that. Nothing where there is no entry. Any thread.
[[nodiscard]] std::optional<double> creationDate(const std::string& path);

/// Linux lets nobody set the date: this process keeps it, as long as the entry is there. False
/// when there is none.
bool setCreationDate(const std::string& path, double secondsSince1970);

} // namespace desktop::foundation
