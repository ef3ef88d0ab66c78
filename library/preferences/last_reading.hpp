// What the last reading of the preference file found, for the next one to compare with.
#pragma once

#include "library/preferences/parsed_file.hpp"

#include <memory>

namespace wentra::preferences {

/// Null before the first reading. Any thread; one for all of them, since they read the same file.
std::shared_ptr<const ParsedFile> lastReading();

/// Any thread.
void setLastReading(std::shared_ptr<const ParsedFile> file);

} // namespace wentra::preferences
