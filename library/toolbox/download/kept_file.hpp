// Keeping a file that is about to be removed.
#pragma once

#include "bindings/foundation/error.hpp"
#include "bindings/foundation/url.hpp"

namespace wentra::toolbox {

/// Copies the file to the path. A file that is there already is replaced in one step, by the whole
/// copy; when that fails it stays, and so does a folder. Nil when it worked; a nil path is
/// a failure. Any thread.
[[nodiscard]] ns::Error keepFile(ns::Url file, ns::String path);

} // namespace wentra::toolbox
