// The main bundle's identity.
#pragma once

#include "bindings/foundation/string.hpp"

namespace desktop::foundation {

/// Lets the main bundle answer that identifier; other bundles keep theirs.
void installBundle(ns::String identifier);

} // namespace desktop::foundation
