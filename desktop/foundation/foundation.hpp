// What the desktop adds to Foundation to make it a phone application's.
#pragma once

#include <string>

namespace desktop::foundation {

/// Gives the process the application's identity and its user defaults, and puts delayed work on the
/// desktop's clock. Once, before the application's own code, with the device root set. The
/// identifier is UTF-8. Main thread.
void install(const std::string& bundleIdentifier);

} // namespace desktop::foundation
