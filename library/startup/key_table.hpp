// Finds the place of a known preference key through a hash table made at compile time.
#pragma once

#include "library/startup/preference_keys.hpp"

#include <cstddef>
#include <string_view>

namespace wentra::startup {

inline constexpr std::size_t knownKeyCount = sizeof(PreferenceKeys) / sizeof(Key);

/// The place of the key of that UTF-8 name among the known ones, knownKeyCount for any other name.
std::size_t knownKeyIndex(std::string_view name);

} // namespace wentra::startup
