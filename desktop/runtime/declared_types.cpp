// Asking the platform's table.
#include "desktop/runtime/declared_types.hpp"

#include "bindings/objc/declared_types.hpp"

namespace desktop {

const char* declaredTypes(Class cls, SEL selector) { return objc::declaredTypes(cls, selector); }

} // namespace desktop
