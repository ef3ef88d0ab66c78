// What every page is told first.
#pragma once

#include "desktop/host/json.hpp"
#include "desktop/viewer/supervisor.hpp"

#include <filesystem>

namespace desktop::viewer {

/// Which application the phone was started with, which others there are, and where its data is, as
/// a message of that type.
[[nodiscard]] host::Json welcomeMessage(const char* type, const Start& start,
                                        const std::filesystem::path& deviceFolder);

} // namespace desktop::viewer
