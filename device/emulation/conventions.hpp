// Functions as the other side may call them: a phone's caller widens small integers that it passes
// and its callee those that it answers, and the other side relies on both; Linux's do neither.
#pragma once

#include "bindings/objc/runtime.hpp"

namespace emulation {

/// The library's function as Linux may call it: `types` is the encoding of its types; null: as it
/// is. Any other function as it is.
[[nodiscard]] IMP forLinux(IMP function, const char* types);

/// Linux's function as the library may call it; of the library's own, the function itself, whatever
/// was made of it for Linux.
[[nodiscard]] IMP forLibrary(IMP function, const char* types);

} // namespace emulation
