// The folders that the phone gives an application.
#pragma once

#include "bindings/foundation/string.hpp"

namespace desktop::foundation {

/// Makes the folders for documents and temporary files of the application with that bundle
/// identifier, paths on the device, and lets the file manager answer with them: applications of the
/// system share the user's documents, every other has its own. Once.
void installApplicationFolders(ns::String bundleIdentifier);

} // namespace desktop::foundation
