// Writing one value back into the preference file.
#pragma once

#include "bindings/foundation/string.hpp"

namespace wentra::startup {

/// Sets the value under `key` (a boolean, number or string object; nil removes it) and replaces the
/// file as a whole, atomically, in XML. Every other entry stays. A file that is missing is made;
/// one that is there but holds no dictionary is left as it is, since it may be somebody's. False
/// when nothing was written, which callers need not tell anyone. Main thread; of two writers at the
/// same time, one may lose its change.
bool storePreference(ns::String key, objc::Object value);

} // namespace wentra::startup
