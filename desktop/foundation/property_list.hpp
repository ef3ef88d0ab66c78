// Property lists as snapshots.
#pragma once

#include "bindings/objc/object.hpp"

#include <cstddef>

namespace desktop::foundation {

/// How deep collections may lie in one another: everything here goes into them by recursion.
constexpr std::size_t deepestNesting = 512;

/// An immutable copy of a property list with all that is in it, borrowed from the pool; nil when
/// anything in it is no property-list value, a key is no string, or it is nested deeper than
/// `deepestNesting` (it may contain itself).
[[nodiscard]] objc::Object propertyListCopy(objc::Object list);

} // namespace desktop::foundation
