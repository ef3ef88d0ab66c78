// Handing addresses to the system.
#pragma once

#include "bindings/foundation/url.hpp"

namespace wentra {

/// Asks the system to open the URL in the application that it belongs to. Nothing for nil. Main
/// thread.
void openUrl(ns::Url url);

} // namespace wentra
