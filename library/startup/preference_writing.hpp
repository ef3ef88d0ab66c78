// The preference file as a dictionary, and writing into it.
#pragma once

#include "bindings/foundation/dictionary.hpp"

namespace wentra::startup {

/// Everything in the file, to be changed; empty when there is no file or no dictionary in it.
ns::MutableDictionary storedPreferences();

/// Sets the value under `key` (a boolean, number or string object; nil removes it) and replaces the
/// file as a whole, atomically, in XML. Every other entry stays. A file that is missing is made;
/// one that is there but holds no dictionary is left as it is, since it may be somebody's. False
/// when nothing was written, which callers need not tell anyone. Main thread; of two writers at the
/// same time, one may lose its change.
bool storePreference(ns::String key, objc::Object value);

/// The same with all entries at once: whatever else is in the file is lost.
bool storePreferences(ns::Dictionary entries);

} // namespace wentra::startup
