// Property lists as snapshots.
#pragma once

#include "bindings/objc/object.hpp"

namespace desktop::foundation {

/// An immutable copy of a property list with all that is in it, borrowed from the pool; nil when
/// anything in it is no property-list value, a key is no string, or it is nested deeper than a
/// hundred levels (it may contain itself).
[[nodiscard]] objc::Object propertyListCopy(objc::Object list);

} // namespace desktop::foundation
