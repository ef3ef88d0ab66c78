// Where a text stands in another, whatever the case of its letters.
#pragma once

#include "bindings/foundation/string.hpp"

#include <vector>

namespace wentra {

/// Every place in the text where `sought` stands by the platform's rules of case, from the start
/// on; none overlaps another. None when either is nil or `sought` is empty.
[[nodiscard]] std::vector<ns::Range> occurrencesIgnoringCase(ns::String text, ns::String sought);

} // namespace wentra
