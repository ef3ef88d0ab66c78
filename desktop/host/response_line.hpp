// A response as it goes, one line of JSON.
#pragma once

#include "desktop/host/json.hpp"

#include <string>

namespace desktop::host {

/// The value on one line. A lone surrogate in a string is written as an escape (`\ud83d`), other
/// bytes that are not UTF-8 as U+FFFD.
[[nodiscard]] std::string written(const Json& value);

} // namespace desktop::host
