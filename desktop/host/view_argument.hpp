// The view that a request is about.
#pragma once

#include "desktop/host/commands.hpp"

#include "bindings/uikit/view.hpp"

namespace desktop::host {

/// The view `on`, or else the one that a finger would touch `at` that point of the screen, which
/// may be nil; everything is laid out. Throws RequestError for other values, and without both.
[[nodiscard]] ui::View viewArgument(Session& session, const Json& request);

} // namespace desktop::host
