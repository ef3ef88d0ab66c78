// Finds the place of a known preference key through a hash table made at compile time.
#pragma once

#include "library/common/text_encoding.hpp"
#include "library/preferences/preference_keys.hpp"

#include <cstddef>
#include <string_view>

namespace wentra::preferences {

inline constexpr std::size_t knownKeyCount = sizeof(PreferenceKeys) / sizeof(Key);

/// The place among the known keys of the one with that name, knownKeyCount for any other name.
std::size_t knownKeyIndex(std::string_view name, Encoding encoding = Encoding::utf8);

} // namespace wentra::preferences
