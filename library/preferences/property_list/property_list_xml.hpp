// Reads property lists written as XML.
#pragma once

#include "library/preferences/property_list/padded_bytes.hpp"
#include "library/preferences/property_list/property_list.hpp"

namespace wentra::preferences {

/// Hands the entries of the top dictionary of a UTF-8 document to `sink`, in one pass without
/// recursion. Values and keys refer to `document`; a key only until the sink returns.
/// False when the document is malformed anywhere, cut short, nested deeper than 512 or its top
/// object is no dictionary. A document type is skipped unless it declares anything itself.
bool readXmlPropertyList(const PaddedBytes& document, EntrySink& sink);

} // namespace wentra::preferences
