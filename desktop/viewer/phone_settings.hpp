// What a person has set the phone to, handed on from one of its processes to the next.
#pragma once

#include "desktop/host/options.hpp"

#include <string>

namespace desktop::viewer {

/// Model, appearance and text size, as they are now. Main thread.
[[nodiscard]] std::string presentSettings();

/// Has the phone start with what `presentSettings` gave in another process; with the options as
/// they are where the text is empty.
void applySettings(const std::string& settings, host::Options& options);

} // namespace desktop::viewer
