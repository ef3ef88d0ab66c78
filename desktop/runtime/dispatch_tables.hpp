// GNU libobjc's tables of what each class answers.
#pragma once

#include "bindings/objc/runtime.hpp"

namespace desktop {

/// To be called when a method of the class has got another implementation: where a subclass
/// overrides methods that have numbers near the method's, its table would keep the former one. Any
/// thread.
void renewDispatchTables(Class cls);

} // namespace desktop
