// The Objective-C object of the exception being handled, which C++'s `catch (...)` does not name.
#pragma once

#include "bindings/objc/object.hpp"

namespace objc {

/// Inside a `catch (...)` block: the object that was thrown, when an Objective-C exception is being
/// handled on this thread; nil for a C++ exception.
[[nodiscard]] Object exceptionInFlight();

} // namespace objc
