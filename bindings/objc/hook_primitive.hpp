// The code-injection framework's one function.
#pragma once

#include "bindings/objc/runtime.hpp"

extern "C" {

/// Replaces the implementation of `cls`'s method `name` and stores the former one in `*former`
/// before the replacement can be called. A method that the class only inherits is overridden in
/// `cls`; `*former` is then the inherited implementation. Pass the metaclass for a class method.
void MSHookMessageEx(Class cls, SEL name, IMP replacement, IMP* former);
}
