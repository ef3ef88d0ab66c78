// What Cocoa says of a system call that failed.
#pragma once

#include "bindings/objc/object.hpp"

namespace desktop::foundation {

/// Stores an autoreleased NSError of Cocoa's for `failure` (a value of errno), which is its cause;
/// nothing where nobody asks for one (`error` null).
void report(id* error, int failure);

} // namespace desktop::foundation
