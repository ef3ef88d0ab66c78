// Where a keyword stands in a text.
#pragma once

#include "bindings/foundation/string.hpp"

#include <vector>

namespace wentra::labels {

/// Every place where the keyword stands, whatever its case, from the start on; none overlaps
/// another. None for a keyword that is empty or nil.
[[nodiscard]] std::vector<ns::Range> occurrences(ns::String text, ns::String keyword);

} // namespace wentra::labels
