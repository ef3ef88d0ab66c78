// The file on the device in which the library finds its preferences.
#pragma once

#include "bindings/foundation/dictionary.hpp"
#include "bindings/foundation/property_list_serialization.hpp"

namespace desktop::host::preference_file {

/// The dictionary in the file; nil when there is no file, or none with a dictionary in it.
[[nodiscard]] ns::Dictionary read();

/// Writes the file as a whole, with the folders that lead to it. Throws RequestError when it cannot
/// be written, or when `entries` is not a property list.
void write(ns::Dictionary entries, ns::PropertyListFormat format);

/// Nothing happens when there is none.
void remove();

} // namespace desktop::host::preference_file
