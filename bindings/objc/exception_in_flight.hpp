// The exception being handled, which `catch (...)` does not name.
#pragma once

#include "bindings/objc/boundary.hpp"
#include "bindings/objc/object.hpp"

namespace objc {

/// Inside a `catch (...)` block: the object that was thrown, when an Objective-C exception is being
/// handled on this thread; nil for a C++ exception.
[[nodiscard]] Object exceptionInFlight();

/// Inside a `catch (...)` block that handles a C++ exception: as much of it as the platform's C++
/// runtime tells without its types being linked.
[[nodiscard]] ExceptionText describeCxxExceptionInFlight();

} // namespace objc
