// Reads property lists written as plain text, the form that is older than XML.
#pragma once

#include "library/preferences/property_list/padded_bytes.hpp"
#include "library/preferences/property_list/property_list.hpp"

namespace wentra::preferences {

/// Hands the entries of the top dictionary of a UTF-8 document to `sink`, in one pass without
/// recursion: `{ key = value; … }`, or the same without braces as in strings files, with nothing
/// but white space and comments around it. Values and keys refer to `document`; a key only until
/// the sink returns. A key without a value is its own value. False when the document is malformed
/// anywhere, nested deeper than 512 or its top object is no dictionary.
bool readOldPropertyList(const PaddedBytes& document, EntrySink& sink);

} // namespace wentra::preferences
