// The folders that the phone gives an application.
#pragma once

#include "bindings/foundation/string.hpp"

namespace desktop::foundation {

/// Makes the documents folder of the application with that bundle identifier, a path on the device,
/// and lets the file manager answer with it: applications of the system share the user's, every
/// other has one of its own. Once.
void installApplicationFolders(ns::String bundleIdentifier);

} // namespace desktop::foundation
