// Corrects the terms that machine translation of interface texts is known to get wrong.
#pragma once

#include <string>
#include <string_view>

namespace wentra::labels {

/// Applies each known correction to the whole UTF-16 text, one after the other in a fixed order, so
/// that an earlier one may make or consume what a later one looks for. Case matters.
std::u16string correctTerms(std::u16string_view text);

} // namespace wentra::labels
