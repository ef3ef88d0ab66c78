// What the methods of the platform's classes say of their arguments, beyond what the runtime keeps.
#pragma once

#include "bindings/objc/runtime.hpp"

namespace objc {

/// Keeps the types of a method that tell the classes of its arguments (`v@:@"UIFont"`), for as long
/// as the process lives, and gives the same as the runtime takes them (`v@:@`): Foundation on the
/// desktop does not read them. Types without a class are given back as they are. Any thread.
[[nodiscard, gnu::cold]] const char* keepDeclaredTypes(Class cls, const char* selector,
                                                       const char* types);

/// The types kept for the method that instances of the class have, or a superclass's; null when
/// none are. Any thread.
[[nodiscard]] const char* declaredTypes(Class cls, SEL selector);

} // namespace objc
