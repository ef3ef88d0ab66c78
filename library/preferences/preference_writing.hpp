// The preference file as a dictionary, and writing into it.
#pragma once

#include "bindings/foundation/dictionary.hpp"
#include "library/preferences/preference_key.hpp"

namespace wentra::preferences {

/// Everything in the file, to be changed; empty when there is no file or no dictionary in it.
/// What the reader takes for an empty file is no dictionary here either.
ns::MutableDictionary storedPreferences();

/// Sets the value of a key (a boolean, number or string object; nil removes it) and replaces the
/// file as a whole, atomically, in XML. Every other entry stays. A file that is missing is made;
/// one that is there but holds no dictionary is left as it is, since it may be somebody's. False
/// when nothing was written: then nobody may be told that it was. Main thread; of two writers at
/// the same time, one may lose its change.
[[nodiscard]] bool storePreference(const Key& key, objc::Object value);

/// The same by a name that is known at run time only.
[[nodiscard]] bool storePreference(ns::String name, objc::Object value);

/// The same, but a file that is missing stays missing, and nothing is written.
[[nodiscard]] bool changePreference(ns::String name, objc::Object value);

/// The same with all entries at once: whatever else is in the file is lost.
[[nodiscard]] bool storePreferences(ns::Dictionary entries);

} // namespace wentra::preferences
