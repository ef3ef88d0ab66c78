// Our own service for the web pages on the phone.
#pragma once

#include "desktop/viewer/page_files.hpp"

#include <string>

namespace desktop::viewer {

/// What is answered under "web/" and this path, the number of a load that a view shows and how:
/// "12/light" and "12/dark", the stand-in of its page; "12/outside", the frame in which a browser
/// loads the page itself. Main thread.
[[nodiscard]] Answer webPageAt(const std::string& path);

} // namespace desktop::viewer
