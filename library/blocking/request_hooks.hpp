// The hooks on the platform's URL and networking classes.
#pragma once

#include "bindings/objc/hook.hpp"

#include <span>

namespace wentra::blocking {

/// Works out where the preference file is, once for the life of the process: the hooks of this
/// folder read it from there, at each call. At start-up, before they are installed.
[[gnu::cold]] void resolvePreferencePath();

/// The ten entry points at which requests are stopped, each by words and in a way of its own. They
/// may be called on any thread.
[[gnu::cold]] std::span<const objc::Change> requestHooks();

} // namespace wentra::blocking
