// GNU libobjc's tables of what each class answers.
#pragma once

#include "bindings/objc/runtime.hpp"

namespace desktop {

/// To be called when a method of the class has got another implementation: where a subclass
/// overrides methods that have numbers near the method's, its table would keep the former one. Any
/// thread.
void renewDispatchTables(Class cls);

/// The same for one method, new in the class or changed: each table gets its entry. The caller
/// holds the runtime's lock.
void renewDispatchTables(Class cls, const objc_method& method);

/// Gives a method that is the class's own another implementation, which the class and its
/// subclasses answer from then on. The runtime's function, not being told the class, looks through
/// all methods of all classes. Any thread.
void setImplementation(Class cls, Method method, IMP implementation);

} // namespace desktop
