// Reads binary property lists.
#pragma once

#include "library/preferences/property_list/padded_bytes.hpp"
#include "library/preferences/property_list/property_list.hpp"

namespace wentra::preferences {

/// The bytes every binary property list begins with.
inline constexpr std::string_view binarySignature = "bplist00";

/// Hands the entries of the top dictionary to `sink`. Each object of the file is checked on its own
/// in one linear pass; references are compared with the number of objects but only the top
/// dictionary's are followed, so that cycles do no harm. Keys and values refer to `file`. False
/// when the file is malformed or cut short, its objects overlap, or its top object is no
/// dictionary.
bool readBinaryPropertyList(const PaddedBytes& file, EntrySink& sink);

} // namespace wentra::preferences
