// The main bundle: its identity, and what it says of the application.
#pragma once

#include "bindings/foundation/string.hpp"

namespace desktop::foundation {

/// Lets the main bundle answer that identifier, and an Info dictionary that says what the
/// application wants photos, microphone and speech for. Other bundles keep theirs.
void installBundle(ns::String identifier);

/// From now on, the Info dictionary says nothing of what the application wants.
void forgetUsageDescriptions();

/// Ends the process with a line on standard error when the main bundle does not say what the
/// application wants that for: so does the system. The key is "NSMicrophoneUsageDescription", for
/// instance.
void requireUsageDescription(ns::String key);

} // namespace desktop::foundation
