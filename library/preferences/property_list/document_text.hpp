// In which encoding the text of a property list is written.
#pragma once

#include "library/preferences/property_list/padded_bytes.hpp"

#include <optional>
#include <string_view>

namespace wentra::preferences {

/// The document in UTF-8; none when it stands there already, as a binary property list does too.
/// A byte order mark tells UTF-16 and UTF-8 and is no part of the document; then XML's declaration
/// tells US-ASCII, ISO-8859-1 and Windows-1252. What is declared in another encoding, or is not
/// well-formed in its own, gives bytes that no reader takes.
std::optional<PaddedBytes> inUtf8(std::string_view document);

} // namespace wentra::preferences
