// The folder that the system gives each application for its documents.
#pragma once

#include "bindings/foundation/string.hpp"

#include <string_view>

namespace wentra::paths {

/// The path of the file of that name in the first documents folder of the application; nil when the
/// system knows no such folder. Nothing is made there.
ns::String documentPath(std::u16string_view name);

} // namespace wentra::paths
